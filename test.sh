#!/usr/bin/env bash
# Installs what is missing and runs every test: on the release build, and the core's also under the address and
# undefined-behaviour sanitizers ("Checked."). The last lines are ctest's count of all tests.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/packages.sh
install_missing_packages

build_preset release tessaryn tessaryn-cli tessaryn_shell_tests tessaryn_tests tessaryn_tests_checked
ctest --preset release -j "$(nproc)" --output-on-failure -LE slow
