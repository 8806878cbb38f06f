#!/usr/bin/env bash
# Brings the files of translations up to date with the texts of the window: data/translations/tessaryn_XX.ts, a
# language each. What a file has already stays; what is new is marked unfinished; what is gone goes.
# To add a language, name it here and in src/shell/table/spoken_language.cpp, and run this.
set -euo pipefail
cd "$(dirname "$0")/.."
LANGUAGES=(es de fr tr)
lupdate=$(command -v lupdate-qt6 || echo "$(qmake6 -query QT_HOST_BINS 2>/dev/null || echo /usr/lib/qt6/bin)/lupdate")
files=()
for language in "${LANGUAGES[@]}"; do files+=("data/translations/tessaryn_$language.ts"); done
"$lupdate" -no-obsolete -locations none -source-language en -I src src/shell -ts "${files[@]}" "$@"
# English has only the forms of what is counted: "1 roll", "2 rolls".
"$lupdate" -no-obsolete -locations none -source-language en -target-language en_US -pluralonly -I src src/shell \
  -ts data/translations/tessaryn_en.ts "$@"
