# What the comparisons share. Processor time, since a wall clock also counts what else the machine does.

# rate ROLLS COMMAND...: rolls for each second of processor time that the command took; with rate_by=%R by the
# clock. The command tells, as one JSON object in its last line, how many it rolled.
rate() {
  local rolls=$1 answer spent TIMEFORMAT=${rate_by:-%U %S}
  shift
  answer=$(mktemp)
  spent=$({ time "$@" >"$answer" 2>&3; } 3>&2 2>&1)
  if ! tail -1 "$answer" | grep -q "\"roll\(s\|ed\)\":$rolls\b"; then
    echo "$*: not $rolls rolls: $(tail -1 "$answer")" >&2
    return 1
  fi
  rm "$answer"
  awk -v n="$rolls" '{ printf "%d", n / ($1 + $2) }' <<<"$spent"
}
