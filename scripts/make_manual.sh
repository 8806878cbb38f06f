#!/usr/bin/env bash
# Writes the manual page of a program from what its --help says, and that of its commands.
#   scripts/make_manual.sh PROGRAM VERSION FILE
set -euo pipefail
program="$1" version="$2" file="$3"
name="$(basename "$program")"

# Help text, without its first line, to manual: options and positionals as a list, examples as they stand.
to_manual() {
  awk '
    function text(line) {
      gsub(/\\/, "\\e", line)
      gsub(/-/, "\\-", line)
      return line ~ /^[.\x27]/ ? "\\&" line : line
    }
    function verbatim() { print ".PP\n.EX"; asItStands = 1 }
    /^Usage: / { print ".PP\n.B " text(substr($0, 8)); next }
    /^Example:$/ { verbatim(); next }
    /^Example: / { verbatim(); print text(substr($0, 10)); next }
    asItStands { print text($0); next }
    /^(Options|Positionals):$/ { listing = 1; next }
    /^[A-Z][A-Za-z ]*:$/ { listing = 1; print ".PP\n" text($0); next }
    listing && /^   +[^ ]/ { sub(/^ +/, ""); print text($0); next }
    listing && /^  [^ ]/ {
      term = substr($0, 3)
      rest = ""
      if (match(term, /  +/)) { rest = substr(term, RSTART + RLENGTH); term = substr(term, 1, RSTART - 1) }
      print ".TP\n.B " text(term)
      if (rest != "") print text(rest)
      next
    }
    /^$/ { next }
    { listing = 0; print ".PP\n" text($0) }
    END { if (asItStands) print ".EE" }'
}

help="$("$program" --help)"
headline="$(sed -n 1p <<<"$help")"
what="${headline#Tessaryn: }"
commands="$(sed -n '/^Subcommands:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p' <<<"$help")"
{
  echo ".TH ${name^^} 1 \"\" \"Tessaryn $version\" \"Tessaryn\""
  echo ".SH NAME"
  echo "$name \\- ${what%.}"
  echo ".SH SYNOPSIS"
  echo ".B $(sed -n 's/^Usage: //p' <<<"$help" | sed 's/-/\\-/g')"
  echo ".SH DESCRIPTION"
  echo "$headline"
  [ -z "$commands" ] || echo "Every command has \\-\\-help as well."
  echo ".SH OPTIONS"
  sed -e 1d -e '/^Usage: /d' -e '/^Subcommands:/,$d' <<<"$help" | to_manual
  if [ -n "$commands" ]; then
    echo ".SH COMMANDS"
    for command in $commands; do
      said="$("$program" "$command" --help)"
      echo ".SS $command"
      sed -n 1p <<<"$said"
      sed 1d <<<"$said" | to_manual
    done
    cat <<'TAIL'
.SH EXIT STATUS
0 done; 1 what was asked about is bad, or results could not be written; 2 wrong usage; 128 and a signal's number.
TAIL
  fi
  cat <<'TAIL'
.SH FILES
.TP
.I $XDG_DATA_HOME/tessaryn, ~/.local/share/tessaryn
What the programs write, unless the folder that they stand in can be written or \-\-data\-folder names another.
TAIL
  echo ".SH SEE ALSO"
  [ "$name" = tessaryn ] && echo ".BR tessaryn\\-cli (1)" || echo ".BR tessaryn (1)"
} >"$file.new"
mv "$file.new" "$file"
