#!/bin/sh
# Makes a level of a map: compile.sh WAY NAME, where WAY is super, fast, full, novis, relight or leaktest and
# NAME.map is in the working directory. Velk's batch files call it and say in VELK_MAP where the map is, and in
# VELK_COMPILER_DIRECTORY where the compiler is when it is not on the PATH.
set -u
way=${1:?WAY}
name=${2:?NAME}
map=${VELK_MAP:-$name.map}
file=${map##*/}
level=${map%"$file"}${file%.*}.bsp

if [ ! -f "$map" ]; then
  echo "ERROR: there is no map $map" >&2
  exit 1
fi

# tool NAME: prints where it is; fails when it is nowhere.
tool() {
  if [ -n "${VELK_COMPILER_DIRECTORY:-}" ] && [ -x "$VELK_COMPILER_DIRECTORY/$1" ]; then
    echo "$VELK_COMPILER_DIRECTORY/$1"
  else
    command -v "$1"
  fi
}

# run NAME ARGUMENT...: the tool, or a plain word on what is missing.
run() {
  program=$(tool "$1") || {
    echo "ERROR: $1 was not found. Put it on the PATH, or name its folder under File > Directories." >&2
    exit 127
  }
  shift
  echo "--- $program $*"
  "$program" "$@" || exit
}

case $way in
  super) run qbsp -nofill "$map" && run light "$level" ;;
  fast) run qbsp "$map" && run light "$level" && run vis -fast "$level" ;;
  full) run qbsp "$map" && run light "$level" && run vis "$level" ;;
  novis) run qbsp "$map" && run light "$level" ;;
  relight) run light "$level" ;;
  leaktest) run qbsp -mark -notjunc "$map" ;;
  *)
    echo "ERROR: compile.sh knows no way $way" >&2
    exit 1
    ;;
esac
