#!/usr/bin/env bash
# Makes the pictures of the help (docs/help/pictures) anew, by the window itself. Needs the tests of a build;
# another build than build/dev is named as the argument.
set -euo pipefail
cd "$(dirname "$0")/.."
TESSARYN_HELP_PICTURES=1 QT_QPA_PLATFORM=offscreen "${1:-build/dev}/bin/tessaryn_shell_tests" --gtest_filter='HelpPictures.*'
