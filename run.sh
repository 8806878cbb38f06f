#!/usr/bin/env bash
# Installs what is missing, builds the release and starts the program: a table at this terminal, or without
# a terminal (or with --headless) a million rolls of a sample system with their report. Further arguments go
# to the command-line program.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/packages.sh
install_missing_packages
build_preset release >&2

program=build/release/bin/tessaryn-cli
headless=0
if [ "${1:-}" = "--headless" ]; then
  headless=1
  shift
fi
if [ $# -gt 0 ]; then
  exec "$program" "$@"
elif [ $headless -eq 0 ] && [ -t 0 ] && [ -t 1 ]; then
  exec "$program" play
else
  echo "A million rolls of data/samples/Sample1.bet, the Pass Line with odds:"
  exec "$program" run --player Ann=100000 --script data/samples/Sample1.bet --rolls 1000000
fi
