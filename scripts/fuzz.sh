#!/usr/bin/env bash
# Builds the fuzz targets and runs them, side by side, for so many seconds each, from the seeds in fuzz/corpus and
# what earlier runs found in build/fuzz/corpus. A crash leaves its input there and ends with exit code 1.
# usage: scripts/fuzz.sh SECONDS [TARGET ...]      targets: compile run prb rol settings game sessions play lsp
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:?usage: scripts/fuzz.sh SECONDS [TARGET ...]}"
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(compile run prb rol settings game sessions play lsp)
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target "${targets[@]/#/fuzz_}"
failed=0
pids=()
for target in "${targets[@]}"; do
  found="$PWD/build/fuzz/corpus/$target"
  mkdir -p "$found"
  "build/fuzz/bin/fuzz_$target" -max_total_time="$seconds" -timeout=30 -artifact_prefix="$found-" -print_final_stats=1 \
    "$found" "$PWD/fuzz/corpus/$target" >"$found.log" 2>&1 &
  pids+=($!)
done
for i in "${!pids[@]}"; do
  wait "${pids[$i]}" || failed=1
  echo "${targets[$i]}: $(grep -E 'number_of_executed_units|SUMMARY' "build/fuzz/corpus/${targets[$i]}.log" | tr '\n' ' ')"
done
exit $failed
