#!/usr/bin/env bash
# Puts a client library of the Language Server Protocol into build/editors, for the test Editors.ProtocolSession (npm).
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p build/editors
echo '{"private": true}' > build/editors/package.json
npm install --prefix build/editors --no-audit --no-fund vscode-languageserver-protocol@3.17.5
