#!/usr/bin/env bash
# The speed of scripted play as a ratio to the floor (bench/floor.cpp), all measured in turn in this run, by
# processor time. The handling is what a script finds by itself too, but without a question for each bet that
# is decided.
# Usage: bench/compare_scripts.sh [rounds]     after a release build
set -euo pipefail
cd "$(dirname "$0")/.."
bin=build/release/bin
source bench/rate.sh

run() {
  local rolls=$1
  shift
  rate "$rolls" "$bin/tessaryn-cli" run "$@" --set ShooterBetRule=0 --set WinHandling=2 --set LoseHandling=1 --rolls "$rolls" --json
}
alone() { run "$2" --player Ann=5000000 --script "bench/scripts/$1.bet"; }
eight() {
  local players=() name
  for name in Ann Bob Cyd Dan Eve Fay Gus Hal; do
    players+=(--player "$name=5000000" --script bench/scripts/one_of_eight.bet)
  done
  run 1000000 "${players[@]}"
}

printf '%12s %10s %14s %12s %12s %12s\n' "floor/s" "one line" "line and come" "progression" "CheckStacks" "eight seats"
for _ in $(seq "${1:-3}"); do
  floor=$(rate 20000000 "$bin/tessaryn_floor")
  line=$(alone one_line 5000000)
  come=$(alone line_and_come 2000000)
  progression=$(alone progression 2000000)
  stacks=$(alone check_stacks 2000000)
  seats=$(eight)
  awk -v f="$floor" -v a="$line" -v b="$come" -v c="$progression" -v s="$stacks" -v d="$seats" \
    'BEGIN { printf "%12d %10.3f %14.3f %12.3f %12.3f %12.4f\n", f, a/f, b/f, c/f, s/f, d/f }'
done
