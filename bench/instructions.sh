#!/usr/bin/env bash
# Instructions a roll of the tables and systems that the two comparisons time: valgrind's count, the difference of
# a long and a short run, so that the start cancels out. The same on any load.
# Usage: bench/instructions.sh [FOLDER]     FOLDER of a release build's programs, build/release/bin without
set -euo pipefail
cd "$(dirname "$0")/.."
bin=$(realpath "${1:-build/release/bin}")
source bench/tables.sh
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
short=2000 long=8000

# count COMMAND...: what it executes, reading standard input.
count() {
  valgrind --tool=cachegrind --cache-sim=no --cachegrind-out-file=/dev/null "$@" 2>&1 >/dev/null |
    sed -n 's/.*I *refs: *//p' | tr -d ,
}
row() { awk -v n="$1" -v a="$2" -v b="$3" -v r="$((long - short))" 'BEGIN { printf "%-16s %8.0f\n", n, (b - a) / r }'; }
table() {
  local counts=() rolls
  for rolls in $short $long; do
    counts+=("$(count "$bin/tessaryn-cli" play --data-folder "$folder" < <("$1"; echo "seed 5"; echo "turbo $rolls"))")
  done
  row "$1" "${counts[@]}"
}
# system NAME ARGUMENT...: of "tessaryn-cli run".
system() {
  local name=$1 counts=() rolls
  shift
  for rolls in $short $long; do
    counts+=("$(count "$bin/tessaryn-cli" run "$@" --data-folder "$folder" --seed 5 --set ShooterBetRule=0 \
      --set WinHandling=2 --set LoseHandling=1 --rolls "$rolls" --json </dev/null)")
  done
  row "$name" "${counts[@]}"
}

for name in no_bets pass_line propositions eight logged; do table $name; done
for name in one_line line_and_come progression check_stacks; do
  system $name --player Ann=5000000 --script bench/scripts/$name.bet
done
players=()
for name in Ann Bob Cyd Dan Eve Fay Gus Hal; do players+=(--player "$name=5000000" --script bench/scripts/one_of_eight.bet); done
system eight_scripts "${players[@]}"
