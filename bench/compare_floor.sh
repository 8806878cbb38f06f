#!/usr/bin/env bash
# The speed of a Turbo-Roll as a ratio to the floor (bench/floor.cpp), both measured in turn in this run.
# Usage: bench/compare_floor.sh [rounds]     after a release build
set -euo pipefail
cd "$(dirname "$0")/.."
bin=build/release/bin
rate() { sed 's/.*"rollsPerSecond":\([0-9]*\).*/\1/'; }

eight() {
  local seat=0 name
  for name in Ann Bob Cyd Dan Eve Fay Gus Hal; do
    seat=$((seat + 1))
    echo "join $seat $name 5000000"
  done
  echo "set WinHandling 2"; echo "set LoseHandling 2"; echo "set AutoTakeOdds on"
  for seat in 1 2 3 4 5 6 7 8; do
    echo "bet $seat passline 10"; echo "bet $seat place6 12"; echo "bet $seat place8 12"; echo "bet $seat field 5"
  done
  echo "turbo 2000000"
}
pass_line() {
  printf '%s\n' "join 1 Ann 5000000" "set WinHandling 2" "set LoseHandling 2" "bet 1 passline 10" "turbo 10000000"
}

printf '%12s %10s %10s %12s\n' "floor/s" "no bets" "pass line" "eight seats"
for _ in $(seq "${1:-3}"); do
  floor=$($bin/tessaryn_floor | rate)
  none=$($bin/tessaryn-cli run --player Ann=5000 --set ShooterBetRule=0 --rolls 10000000 --json | rate)
  pass=$(pass_line | $bin/tessaryn-cli play | tail -1 | rate)
  busy=$(eight | $bin/tessaryn-cli play | tail -1 | rate)
  awk -v f="$floor" -v n="$none" -v p="$pass" -v b="$busy" \
    'BEGIN { printf "%12d %10.3f %10.3f %12.3f\n", f, n/f, p/f, b/f }'
done
