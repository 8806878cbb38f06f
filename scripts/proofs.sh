#!/usr/bin/env bash
# The tests of what is kept, at full length, one after the other, with the seconds that each took. Goes on after a
# failure and ends with 1 then. An hour or more on an idle machine; what is named is run alone.
# TMPDIR=/dev/shm spares a disk the hundred thousands of files, and is several times as fast.
# usage: scripts/proofs.sh [NAME ...]      after a release build
set -uo pipefail
cd "$(dirname "$0")/.."
tests=build/release/bin/tessaryn_tests
proofs=(
  "files GameFile.AGameThatWasOpened*:CliGame.ANewProcess* TESSARYN_GAME_FILES=200"
  "cuts GameFile.ATruncated* TESSARYN_GAME_CUTS=2000 TESSARYN_GAME_MUTATIONS=0"
  "mutations GameFile.ATruncated* TESSARYN_GAME_CUTS=1 TESSARYN_GAME_MUTATIONS=100000"
  "logs SessionsLogFile.NoTruncation* TESSARYN_LOG_MUTATIONS=100000"
  "faults GameFile.AWriteThatFails*:SessionsLogFile.AFullDisk* TESSARYN_GAME_FAULTS=2000"
  "kills GameFile.AProgramThatIsKilled* TESSARYN_GAME_KILLS=1000"
  "sessions SessionsLogKilled.* TESSARYN_KILL_ROUNDS=1000"
)
failed=0
for proof in "${proofs[@]}"; do
  read -r name filter settings <<<"$proof"
  [ $# -eq 0 ] || [[ " $* " == *" $name "* ]] || continue
  # shellcheck disable=SC2086
  said=$(env $settings $tests --gtest_filter="$filter" 2>&1) || { failed=1; echo "$said"; }
  echo "$name: $settings $(grep -E '^\[=+\] [0-9]+ tests? from .* ran' <<<"$said" | grep -oE '\([0-9]+ ms')) $(grep -cE '^\[ +FAILED' <<<"$said") failed"
done
exit $failed
