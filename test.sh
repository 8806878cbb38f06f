#!/usr/bin/env bash
# Installs what is missing and runs every test: the release build's, then the core's under the address and
# undefined-behaviour sanitizers. The last lines are ctest's count of all tests.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/packages.sh
install_missing_packages
jobs=$(nproc)

build_preset sanitize
# Long random games are shortened here, and how programs end is left to the release build: the sanitizers look at
# memory in the core.
TESSARYN_MODEL_ROLLS=6000 TESSARYN_EDGE_ROLLS=50000 TESSARYN_SANITIZED=1 \
  ctest --preset sanitize -j "$jobs" --output-on-failure -LE slow -E '^CliEndings\.'

build_preset release
ctest --preset release -j "$jobs" --output-on-failure
