#!/usr/bin/env bash
# The speed of a Turbo-Roll as a ratio to the floor (bench/floor.cpp), both measured in turn in this run, by
# processor time. Usage: bench/compare_floor.sh [rounds]     after a release build
set -euo pipefail
cd "$(dirname "$0")/.."
bin=build/release/bin
source bench/rate.sh
source bench/tables.sh
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

# played ROLLS TABLE: that table's rate.
played() { rate "$1" "$bin/tessaryn-cli" play --data-folder "$folder" < <("$2"; echo "turbo $1"); }

printf '%12s %10s %10s %12s %13s %12s\n' "floor/s" "no bets" "pass line" "propositions" "eight seats" "eight logged"
for _ in $(seq "${1:-3}"); do
  floor=$(rate 20000000 $bin/tessaryn_floor)
  none=$(rate 10000000 $bin/tessaryn-cli run --player Ann=5000 --set ShooterBetRule=0 --rolls 10000000 --json)
  pass=$(played 10000000 pass_line)
  props=$(played 2000000 propositions)
  busy=$(played 2000000 eight)
  logs=$(played 200000 logged)
  awk -v f="$floor" -v n="$none" -v p="$pass" -v o="$props" -v b="$busy" -v l="$logs" \
    'BEGIN { printf "%12d %10.3f %10.3f %12.3f %13.3f %12.4f\n", f, n/f, p/f, o/f, b/f, l/f }'
done
