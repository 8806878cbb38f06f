#!/usr/bin/env bash
# The embedded example: a million rolls of a standing $10 Pass Line bet, with the report.
set -euo pipefail
program="$1"
exec "$program" run --player Ann=5000 --standing 1:passline=10 --rolls 1000000
