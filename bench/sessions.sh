#!/usr/bin/env bash
# A million sessions of 100 rolls, begun by a script, and what the Sessions Log says of them, beside a plain
# recomputation of dice, money, log, statistics and histogram (bench/sessions_plain.cpp). Times are of processor,
# memory the most that was resident. Ends with 1 if anything differs.
# Usage: bench/sessions.sh [sessions [seed]]     after a release build
set -euo pipefail
cd "$(dirname "$0")/.."
sessions=${1:-1000000}
seed=${2:-7}
bin=$PWD/build/release/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cat >"$work/hundred.bet" <<'END'
if # rolls = 100 then
   start new session
endif
bet 5 on field
END
measure() {
  local name=$1
  shift
  "$bin/tessaryn_sessions_plain" measure "$name" "$@"
}
mkdir "$work/data"
measure "run" "$bin/tessaryn-cli" run --data-folder "$work/data" --player Ann=1000 --script "$work/hundred.bet" \
  --permit 1=reset --rng 3 --seed "$seed" --set ShooterBetRule=0 \
  --set WinHandling@1=2 --set LoseHandling@1=1 --set BankrollInitType@1=1 --rolls $((sessions * 100 + 1)) --json >"$work/run.json"
for stat in 6 8 9; do
  measure "statistics" "$bin/tessaryn-cli" sessions "$work/data/ann.slg" --stat $stat --json >"$work/$stat.json"
done
"$bin/tessaryn_sessions_plain" compare "$work/data/ann.slg" "$sessions" "$seed" "$work"
