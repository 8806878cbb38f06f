#!/usr/bin/env bash
# Installs what is missing, builds the release and starts the program. With --headless it plays a million
# rolls of a sample system instead, with their report; further arguments after --headless go to the
# command-line program, others to the window.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/packages.sh
install_missing_packages
build_preset release tessaryn tessaryn-cli tessaryn_manuals >&2  # the tests and benchmarks are for test.sh

bin=build/release/bin
if [ "${1:-}" = "--headless" ]; then
  shift
  [ $# -gt 0 ] && exec "$bin/tessaryn-cli" "$@"
  echo "A million rolls of data/samples/Sample1.bet, the Pass Line with odds:"
  exec "$bin/tessaryn-cli" run --player Ann=100000 --script data/samples/Sample1.bet --rolls 1000000
fi
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
  echo "There is no display to open the window on; ./run.sh --headless play is a table at this terminal." >&2
  exit 1
fi
exec "$bin/tessaryn" "$@"
