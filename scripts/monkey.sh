#!/usr/bin/env bash
# Random mouse and keys on the real program in a display of its own, for an hour or as long as told. Best with the
# program of the sanitize-shell preset, which stops at the first fault. Ends with 1 if the program ended other than
# by its own Exit, or said anything on standard error; its words, a picture of the end and the data folder then stay.
#
#   scripts/monkey.sh [SECONDS [SEED [PROGRAM]]]
set -euo pipefail
seconds=${1:-3600}
seed=${2:-$(date +%s)}
program=${3:-$(dirname "$0")/../build/release/bin/tessaryn}
[ -x "$program" ] || { echo "monkey.sh: $program is no program" >&2; exit 2; }
for tool in Xvfb xdotool; do
  command -v "$tool" >/dev/null || { echo "monkey.sh: $tool is missing" >&2; exit 2; }
done
echo "seed $seed, $seconds seconds, $program"

folder=$(mktemp -d)
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp -fbdir "$folder" 2>/dev/null)
server=$!
read -r number <&3
export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$folder
# A closed program has windows and fonts that it never gives back: only what it writes over or past is a fault.
export ASAN_OPTIONS=detect_leaks=0:halt_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
game="" manager=""
finish() {
  for process in $game $manager $server; do kill "$process" 2>/dev/null || true; done
  wait 2>/dev/null || true
}
trap finish EXIT
# With one windows are moved, focused and closed as on a desktop; without one the keys go where the pointer is.
if command -v openbox >/dev/null; then openbox >/dev/null 2>&1 & manager=$!; fi

start() {
  "$program" --data-folder "$folder/data" >>"$folder/said" 2>&1 &
  game=$!
  sleep 4
}

RANDOM=$((seed % 32768))
one_of() { local -a all=("$@"); echo "${all[RANDOM % ${#all[@]}]}"; }
keys=(F2 F2 F2 F2 F3 F5 F6 F7 F9 F11 F12 Delete Return Return Return Return Escape Tab space p z c y n 1 2 3 4 5 6 7 8
  Up Down Left Right ctrl+Return ctrl+a ctrl+1 ctrl+shift+n ctrl+shift+o ctrl+shift+s ctrl+shift+q Home End Prior Next
  plus minus period alt+g alt+p alt+b alt+d alt+u alt+v alt+h alt+F4 BackSpace)
texts=(Ann 5 100 -3 1e9 0.25 99999999 Zoë 2.5.1 abc evening.crp default.crp)
point() { echo $((RANDOM % 1270 + 5)) $((RANDOM % 790 + 5)); }
# shellcheck disable=SC2046
act() {
  local dice=$((RANDOM % 100))
  if ((dice < 35)); then xdotool mousemove $(point) click "$(one_of 1 1 1 1 3 3 2 4 5)"
  elif ((dice < 45)); then xdotool mousemove $(point) mousedown 1 mousemove $(point) mouseup 1
  elif ((dice < 50)); then xdotool type --delay 1 "$(one_of "${texts[@]}")"
  else xdotool key "$(one_of "${keys[@]}")"
  fi
  if ((RANDOM % 20 == 0)); then sleep 0.3; fi
}

fail() {
  echo "monkey.sh: $1 (seed $seed, after $acts acts); see $folder" >&2
  tail -c 3000 "$folder/said" >&2
  cp "$folder/Xvfb_screen0" "$folder/end.xwd" 2>/dev/null || true
  exit 1
}

acts=0 exits=0
mkdir -p "$folder/data"
start
SECONDS=0
while ((SECONDS < seconds)); do
  if ! kill -0 "$game" 2>/dev/null; then
    code=0
    wait "$game" || code=$?
    ((code == 0)) || fail "the program ended with $code"
    exits=$((exits + 1))
    start
  fi
  act >/dev/null 2>&1 || true
  acts=$((acts + 1))
done
# Whatever is open: it ends in order, and loses nothing.
kill -TERM "$game"
code=0
wait "$game" || code=$?
((code == 143 || code == 0)) || fail "SIGTERM ended it with $code"
[ -e "$folder/data/default.crp" ] || fail "no game was kept"
[ ! -s "$folder/said" ] || fail "it complained"
echo "$acts acts, $exits exits, no fault"
finish
trap - EXIT
rm -rf "$folder"
