#!/usr/bin/env bash
# How long the editor's start takes and how much memory it holds, with a window on $DISPLAY or else off-screen:
#   startup.sh VELK [MAP] [RUNS]    e.g. startup.sh build/release/velk e1m1.map 20
# VELK_HOME, when set, is the editor's folder; otherwise it starts with a fresh copy of the kit.
set -euo pipefail

(($# >= 1)) || { echo "usage: startup.sh VELK [MAP] [RUNS]" >&2; exit 2; }
velk=$(realpath "$1")
map=${2:+$(realpath "$2")}
runs=${3:-11}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
[[ -n ${DISPLAY:-} ]] || export QT_QPA_PLATFORM=offscreen
export VELK_HOME=${VELK_HOME:-$work/home} XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$work}
cd "$work"
mkfifo painted

# start MAP...: runs the editor until its window was painted; sets cpu and wall (ms) and memory (kB).
start() {
  local began=${EPOCHREALTIME/./} editor
  "$velk" --time-start "$@" >painted 2>/dev/null &
  editor=$!
  # Warnings about a map may come before.
  cpu=$(grep -m 1 -Ex '[0-9]+\.[0-9]' painted)
  wall=$(((${EPOCHREALTIME/./} - began) / 1000))
  memory=$(awk '/^(Rss|Pss):/ { printf "%s %d  ", $1, $2 }' "/proc/$editor/smaps_rollup"
    awk '/^VmHWM:/ { printf "peak: %d", $2 }' "/proc/$editor/status")
  kill -KILL "$editor"
  wait "$editor" 2>/dev/null || true
}

# measure TEXT MAP...: least and median of all runs.
measure() {
  local text=$1 run
  shift
  : >cpus
  : >walls
  for ((run = 0; run < runs; ++run)); do
    start "$@"
    echo "$cpu" >>cpus
    echo "$wall" >>walls
  done
  printf '%-22s CPU ms: %s   wall ms: %s   kB: %s\n' "$text" "$(spread cpus)" "$(spread walls)" "$memory"
}
spread() { sort -n "$1" | awk '{ v[NR] = $1 } END { printf "%g least, %g median", v[1], v[int((NR + 1) / 2)] }'; }

start # the first one copies the kit
measure "no map"
measure "the kit's map" --kit
if [[ -n $map ]]; then
  measure "$(basename "$map")" "$map"
  # Copies: a file that is open already is only shown.
  for number in {0..9}; do cp "$map" "$work/$number.map"; done
  measure "$(basename "$map"), ten times" "$work"/{0..9}.map
fi
