#!/usr/bin/env bash
# Kills the editor at work, without a warning and at random moments, and looks at what is left:
#   kills.sh VELK [KILLS]      200 kills take a bit over a minute
# After every kill maps, backups and rescue copies must be whole, the newest state that was put away must be
# there, and the next start must find every rescue copy. Exits with 1 when anything is lost or torn.
set -uo pipefail

(($# >= 1)) || { echo "usage: kills.sh VELK [KILLS]" >&2; exit 2; }
velk=$(realpath "$1")
wanted=${2:-200}

work=$(mktemp -d)
running=()
trap 'kill -KILL "${running[@]}" 2>/dev/null; wait; rm -rf "$work"' EXIT
export VELK_HOME=$work/home QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work
safe=$VELK_HOME/drives/c # where backups and rescue copies go
maps=$work/maps
mkdir -p "$safe" "$maps"
cd "$work" || exit 2

kills=0
faults=0
starts=0
strays=0

fault() {
  faults=$((faults + 1))
  printf 'kill %d, %s: %s\n' "$kills" "$round" "$*"
}

# A map of many boxes, so that writing takes its time.
make_map() {
  awk 'function at(i, j, k) { return "( " (x + 64 * i) " " (y + 32 * j) " " 64 * k " ) " }
    function side(a, b, c) { print a b c "wall 0 0 0 1 1" }
    BEGIN {
      print "{\n\"classname\" \"worldspawn\""
      for (n = 0; n < 2000; n++) {
        x = n % 32 * 128 - 2048; y = int(n / 32) * 64 - 2048
        print "{"
        side(at(0, 1, 0), at(0, 0, 1), at(0, 0, 0)); side(at(1, 0, 1), at(1, 1, 0), at(1, 0, 0))
        side(at(0, 0, 1), at(1, 0, 0), at(0, 0, 0)); side(at(1, 1, 0), at(0, 1, 1), at(0, 1, 0))
        side(at(1, 0, 0), at(0, 1, 0), at(0, 0, 0)); side(at(0, 1, 1), at(1, 0, 1), at(0, 0, 1))
        print "}"
      }
      print "}"
    }'
}

# Moves everything to and fro, and after every move writes a rescue copy, a backup and the map.
work_script() {
  local step
  printf 'offer\nanswer "%s"\nCM_FILEOPEN\nCM_SELECT_ALL\n' "$1"
  printf 'tick\n%.0s' {1..6}
  for step in {1..200}; do
    ((step % 2)) && echo CM_NUDGE_RIGHT || echo CM_NUDGE_LEFT
    printf 'rescue\ntick\nCM_FILESAVE\nprint status\n'
  done
}

# The two states of the map: left after an even number of moves, right after an odd one.
prepare() {
  make_map >made.map
  printf '%s\n' 'answer made.map' CM_FILEOPEN CM_SELECT_ALL 'answer left.map' CM_FILESAVEAS CM_NUDGE_RIGHT \
    'answer right.map' CM_FILESAVEAS >prepare
  run_script prepare
  if ! [[ -s left.map && -s right.map ]] || cmp -s left.map right.map; then
    echo "$velk makes no maps to work on." >&2
    exit 2
  fi
  work_script "$maps/one.map" >one
  work_script "$maps/two.map" >two
  for answer in yes no; do printf 'answer %s\noffer\nprint prompts\n' $answer >"$answer"; done
}

fresh() {
  rm -f "$safe"/rescue* "$safe"/backup*
  cp left.map "$maps/one.map"
  cp left.map "$maps/two.map"
}

# Runs a script to its end; what it prints.
run_script() {
  starts=$((starts + 1))
  "$velk" --script "$1" 2>errors || fault "the script '$1' failed: $(tail -n 1 errors)"
}

# launch NAME COMMAND...: in the background, its output in NAME.log.
launch() {
  local name=$1
  shift
  starts=$((starts + 1))
  "$@" >"$name.log" 2>/dev/null &
  running+=($!)
}

# Kills the editor that was launched first, so many milliseconds from now.
kill_after() {
  sleep "$(printf '%d.%03d' $(($1 / 1000)) $(($1 % 1000)))"
  kill -KILL "${running[0]}" 2>/dev/null && kills=$((kills + 1))
  wait "${running[0]}" 2>/dev/null
  running=("${running[@]:1}")
  local left
  left=$(find "$maps" "$safe" -name '.velk-*' | wc -l)
  ((left <= strays)) || strays=$left
}

between() { echo $(($1 + RANDOM % ($2 - $1 + 1))); }

# By a copy: an editor at work may replace the file meanwhile.
whole() { cp "$1" seen && { cmp -s seen left.map || cmp -s seen right.map; }; }

# Copies the rescue copy of a map, less its first line, to `copy`; false when there is none.
take_copy() {
  local file
  # Copies of another editor may come and go meanwhile, which grep would report by its status.
  file=$(grep -lF "//VELKRESCUE $1" "$safe"/rescue[0-9]* 2>/dev/null)
  [[ -n $file ]] && tail -n +2 "$file" >copy
}

# check NAME: what the editor that worked on maps/NAME.map has left.
check() {
  local map=$maps/$1.map backup newest rescues saves
  whole "$map" || fault "$1.map is torn"
  for backup in "$safe"/backup*.map; do
    [[ ! -e $backup ]] || whole "$backup" || fault "$(basename "$backup") is torn"
  done
  rescues=$(grep -cx 1 "$1.log")
  saves=$(grep -c 'saved\.\.\.$' "$1.log")
  ((rescues % 2)) && newest=right.map || newest=left.map
  if take_copy "$map"; then
    whole copy || fault "the rescue copy of $1.map is torn"
    # While a copy stands for a change that is not saved, no older one may.
    ((rescues == saves)) || cmp -s copy $newest || fault "rescue copy $rescues of $1.map is lost"
  elif ((rescues > saves)); then
    cmp -s "$map" $newest || fault "rescue copy $rescues of $1.map is lost"
  fi
  ((rescues > saves || saves == 0)) || cmp -s "$map" $newest || fault "save $saves of $1.map is lost"
}

# The maps that rescue copies stand for.
kept() { head -qn 1 "$safe"/rescue[0-9]* 2>/dev/null | sort; }
put_aside() { head -qn 1 "$safe"/rescued-* 2>/dev/null | sort; }

# The next start finds every copy, also when an earlier one was killed.
come_back() {
  local before line offered
  before=$(kept)
  if ((RANDOM % 2)); then
    launch back "$velk" --script yes
    kill_after "$(between 0 60)"
    [[ $(kept) == "$before" ]] || fault "a start that was killed has lost rescue copies"
  fi
  offered=$(run_script yes)
  while read -r line; do
    [[ -z $line || $offered == *"$(tr -d '\r' <<<"${line#* }")"* ]] || fault "not offered: $line"
  done <<<"$before"
  [[ $(kept) == "$before" ]] || fault "a start has lost rescue copies"
}

one_editor() {
  fresh
  launch one "$velk" --script one
  kill_after "$(between 20 400)"
  check one
  come_back
}

two_editors() {
  fresh
  launch one "$velk" --script one
  launch two "$velk" --script two
  kill_after "$(between 20 400)"
  check one
  # What the editor at work keeps is not offered.
  [[ $(run_script yes) != *two.map* ]] || fault "a rescue copy was taken from an editor at work"
  kill_after "$(between 0 200)"
  check two
  come_back
}

# Rescue copies of many editors, of which none is running any more.
leave_behind() {
  local editor index
  fresh
  for editor in {1..5}; do
    : >"$safe/editor$editor.lock"
    for index in {0..11}; do
      { printf '//VELKRESCUE lost-%d-%d.map\r\n' "$editor" "$index"; cat small.map; } \
        >"$safe/rescue$editor-$index.map"
    done
  done
}

# Starts that take over what others have left, one or two at once, with a script or with a window.
taking_over() {
  local before file answers=(yes no)
  leave_behind
  before=$(kept)
  case $((RANDOM % 4)) in
    0) launch first "$velk" && kill_after "$(between 50 500)" ;;
    1)
      launch first "$velk" --script yes
      launch second "$velk" --script no
      kill_after "$(between 0 60)"
      kill_after "$(between 0 30)"
      ;;
    *) launch first "$velk" --script "${answers[RANDOM % 2]}" && kill_after "$(between 0 60)" ;;
  esac
  [[ $(sort <(kept) <(put_aside)) == "$before" ]] || fault "rescue copies of others are lost"
  run_script no >/dev/null
  [[ -z $(kept) && $(put_aside) == "$before" ]] || fault "declined rescue copies are lost"
  for file in "$safe"/rescued-*; do
    tail -n +2 "$file" | cmp -s - small.map || fault "$(basename "$file") is torn"
  done
}

# New files that kills have left beside maps and backups go with a later save.
sweep() {
  fresh
  find "$maps" "$safe" -name '.velk-*' -exec touch -d '1 hour ago' {} +
  head -n 14 one >once
  run_script once >/dev/null
  [[ -z $(find "$maps" "$safe" -name '.velk-*') ]] || fault "half-written files stay for ever"
}

round=preparing
prepare
awk '/^\{/ && ++open == 3 { exit } { print } END { print "}" }' left.map >small.map
began=$SECONDS
while ((kills < wanted)); do
  for round in one_editor taking_over one_editor two_editors; do
    ((kills >= wanted)) || "$round"
  done
done
round=sweep
sweep
printf '%d kills, %d starts, %d s: %d faults; up to %d half-written files lay about\n' \
  "$kills" "$starts" $((SECONDS - began)) "$faults" "$strays"
((faults == 0))
