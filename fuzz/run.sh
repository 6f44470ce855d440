#!/usr/bin/env bash
# Torments the readers of files with random changes of good ones: fuzz/run.sh [SECONDS [TARGET...]], each
# target for 30 seconds when not told otherwise. What was found stays in build/fuzz/corpus; an input that
# fails is kept as build/fuzz/TARGET-crash-*.
set -uo pipefail
# shellcheck source=tools/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/../tools/setup.sh"
packages+=(clang)
seconds=${1:-30}
shift
targets=("$@")
((${#targets[@]} > 0)) || targets=(settings entities mapfile sidefiles textures)
corpus=$root/build/fuzz/corpus

# number N: as four bytes of a file, the lowest first.
number() {
  # shellcheck disable=SC2059 # the format is made of the bytes
  printf "$(printf '\\x%02x' $(($1 & 255)) $(($1 >> 8 & 255)) $(($1 >> 16 & 255)) $(($1 >> 24 & 255)))"
}

# name TEXT: as the 16 bytes of a name.
name() {
  printf '%s' "$1"
  head -c $((16 - ${#1})) /dev/zero
}

# small_wad NAME: of one texture of 16 by 16 pixels behind a head of 40 bytes.
small_wad() {
  printf WAD2 && number 1 && number 308
  name "$1"
  number 16 && number 16 && number 40 && number 0 && number 0 && number 0
  head -c 256 /dev/zero
  number 12 && number 296 && number 296 && printf 'D\0\0\0'
  name "$1"
}

# Groups of keys as the settings file may have them.
settings_seeds() {
  sed -nE 's/^ *\{"([A-Za-z_>-]+)",.*/\1=7 8 9/p' "$root/src/settings/key_table.cpp" | split -l 8 - "$1/keys."
  local file
  for file in "$1"/keys.*; do sed -i '1i [Velk]' "$file"; done
}

map_seeds() {
  head -c 4000 "$root/kit/start.map" >"$1/start.map"
  local map
  for map in "$root"/tests/script/golden/*/*.map; do cp "$map" "$1/$(basename "$(dirname "$map")")-${map##*/}"; done
}

texture_seeds() {
  local texture
  for texture in wall water sky1 +0button; do small_wad "$texture" >"$1/$texture.wad"; done
  seq -f '0 0x%g 07' 256 >"$1/quake.pal"
}

# Behind the byte that chooses the reader: brushes, leak points, a profile, a compiler's output.
side_seeds() {
  { printf '0' && printf '{\n( 0 64 0 ) ( 0 0 64 ) ( 0 0 0 ) wall 0 0 0 1 1\n}\n'; } >"$1/a.bru"
  printf '10 0 32\n64 0 -32.5\n' >"$1/a.pts"
  printf '22\n0 0\n16 64\n' >"$1/a.rev"
  printf '3ERROR: line 12\r\nentity 3 brush 4 at (1 2 3)\nLEAK\n' >"$1/a.log"
}

seeds() {
  local folder=$corpus/$1
  mkdir -p "$folder"
  case $1 in
    settings) settings_seeds "$folder" && cp "$root/kit/velk.ini" "$folder" ;;
    entities) cp "$root/kit/ents.qc" "$folder" && head -c 800 "$root/kit/ents.qc" >"$folder/head.qc" ;;
    mapfile) map_seeds "$folder" ;;
    sidefiles) side_seeds "$folder" ;;
    textures) texture_seeds "$folder" ;;
  esac
}

# torment TARGET: fails, and shows how it ended, when an input does.
torment() {
  local log=$root/build/fuzz/$1.log
  seeds "$1"
  printf '%-10s' "$1"
  if "$root/build/fuzz/fuzz/fuzz_$1" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=3000 \
    -artifact_prefix="$root/build/fuzz/$1-" "$corpus/$1" >"$log" 2>&1; then
    tail -n 1 "$log"
  else
    echo FAILED
    tail -n 40 "$log"
    return 1
  fi
}

install_packages
build fuzz fuzzers || exit 1
failed=0
for target in "${targets[@]}"; do torment "$target" || failed=1; done
exit "$failed"
