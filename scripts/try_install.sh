#!/usr/bin/env bash
# Installs a build into a folder of its own and tries what is there: programs, links, manuals, desktop files, and that a
# copy of the programs' folder works elsewhere and keeps what it writes beside itself.
#   scripts/try_install.sh BUILD
set -euo pipefail
build="$(realpath "$1")"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
fail() { echo "try_install.sh: $1" >&2; exit 1; }

cmake --install "$build" --prefix "$work/a place" >"$work/log" || fail "not installed: $(tail -3 "$work/log")"
place="$work/a place"
export XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=offscreen HOME="$work"
unset XDG_DATA_HOME DISPLAY WAYLAND_DISPLAY

for file in bin/tessaryn-cli libexec/tessaryn/{mt19937ar.dll,cokus.dll,LICENSE,samples/Sample1.bet,docs/auto-bet.md} \
    share/man/man1/tessaryn-cli.1 share/doc/tessaryn/CHANGELOG.md; do
  [ -s "$place/$file" ] || fail "$file is missing"
done
! grep -q "BUILD\|@" "$place"/share/applications/*.desktop 2>/dev/null || fail "the desktop file has holes"
! grep -rIl "$build" "$place" || fail "these files name the folder of the build"
for command in $("$place/bin/tessaryn-cli" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p'); do
  grep -q "^\.SS $command$" "$place/share/man/man1/tessaryn-cli.1" || fail "the manual has no $command"
done
if command -v man >/dev/null; then
  said="$(man --warnings -E UTF-8 -l "$place"/share/man/man1/*.1 2>&1 >/dev/null)"
  [ -z "$said" ] || fail "manuals: $said"
fi
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$place"/share/applications/*.desktop || fail "the desktop file is not valid"
fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --no-net "$place"/share/metainfo/*.xml || fail "the AppStream data are not valid"
fi

# The portable copy, moved: what it writes lies beside it.
mv "$place/libexec/tessaryn" "$work/stick"
cd "$work"
stick/tessaryn-cli run --player Ann=1000 --script stick/samples/Sample1.bet --rolls 1000 --rng 1 >played ||
  fail "the command line doesn't play"
[ -x stick/tessaryn ] || exit 0
printf 'join 1 Ann 500\nsave stick/default.crp\n' | stick/tessaryn-cli play >/dev/null
stick/tessaryn stick/samples/Sample1.bet &
window=$!
catches_term() { [ $((0x$(awk '/^SigCgt/ { print $2 }' /proc/$window/status) >> 14 & 1)) -eq 1 ]; }
for ((i = 0; i < 200; i++)); do
  kill -0 $window 2>/dev/null || fail "the window ended by itself"
  if catches_term; then break; fi
  sleep 0.1
done
sleep 4  # its last game is opened, and it is shown
kill -TERM $window
code=0
wait $window || code=$?
[ $code -eq 143 ] || fail "the window ended with $code"
stick/tessaryn-cli game stick/default.crp | grep -c "^Script of seat 1: [1-9]" >/dev/null ||
  fail "the script that the window was started with is not kept beside it"
[ ! -e .local/share/tessaryn ] || fail "it wrote elsewhere"
