#!/usr/bin/env bash
# The speed of scripted play as a ratio to the floor (bench/floor.cpp), all measured in turn in this run.
# The handling is what a script finds by itself too, but without a question for each bet that is decided.
# Usage: bench/compare_scripts.sh [rounds]     after a release build
set -euo pipefail
cd "$(dirname "$0")/.."
bin=build/release/bin
rate() { sed 's/.*"rollsPerSecond":\([0-9]*\).*/\1/'; }

alone() {
  "$bin/tessaryn-cli" run --player Ann=5000000 --set ShooterBetRule=0 --set WinHandling=2 --set LoseHandling=1 --script "bench/scripts/$1.bet" --rolls "$2" --json |
    rate
}
eight() {
  local players=() name
  for name in Ann Bob Cyd Dan Eve Fay Gus Hal; do
    players+=(--player "$name=5000000" --script bench/scripts/one_of_eight.bet)
  done
  "$bin/tessaryn-cli" run "${players[@]}" --set ShooterBetRule=0 --set WinHandling=2 --set LoseHandling=1 --rolls 1000000 --json | rate
}

printf '%12s %10s %14s %12s %12s\n' "floor/s" "one line" "line and come" "progression" "eight seats"
for _ in $(seq "${1:-3}"); do
  floor=$("$bin/tessaryn_floor" | rate)
  awk -v f="$floor" -v a="$(alone one_line 5000000)" -v b="$(alone line_and_come 2000000)" \
    -v c="$(alone progression 2000000)" -v d="$(eight)" \
    'BEGIN { printf "%12d %10.3f %14.3f %12.3f %12.4f\n", f, a/f, b/f, c/f, d/f }'
done
