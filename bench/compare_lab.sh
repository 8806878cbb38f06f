#!/usr/bin/env bash
# The laboratory's speed with a one-line script beside that of a single run: sessions of 500 rolls, their start
# and end included. One thread as a ratio to the run by processor time, in turn; two threads as a ratio to one
# by the clock, which asks for a machine with nothing else to do. Then ten million sessions of five rolls, if
# asked for, with the most memory they took.
# Usage: bench/compare_lab.sh [rounds] [long]     after a release build
set -euo pipefail
cd "$(dirname "$0")/.."
bin=build/release/bin
source bench/rate.sh
same=(--script bench/scripts/one_line.bet --set ShooterBetRule=0 --set WinHandling=2 --set LoseHandling=1 --json)
lab=("$bin/tessaryn-cli" lab "${same[@]}" --bankroll 5000000)

printf '%12s %12s %12s\n' "one run/s" "one thread" "two threads"
for _ in $(seq "${1:-3}"); do
  run=$(rate 10000000 "$bin/tessaryn-cli" run --player Ann=5000000 "${same[@]}" --rolls 10000000)
  one=$(rate 10000000 "${lab[@]}" --sessions 20000 --threads 1)
  clock=$(rate_by=%R rate 10000000 "${lab[@]}" --sessions 20000 --threads 1)
  two=$(rate_by=%R rate 10000000 "${lab[@]}" --sessions 20000 --threads 2)
  awk -v r="$run" -v o="$one" -v c="$clock" -v t="$two" 'BEGIN { printf "%12d %12.3f %12.3f\n", r, o/r, t/c }'
done
[ "${2:-}" = long ] || exit 0
/usr/bin/time -f '10,000,000 sessions: %e seconds, %M KB at the most' "${lab[@]}" --sessions 10000000 --rolls 5 >/dev/null
