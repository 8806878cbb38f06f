#!/usr/bin/env bash
# Tries the packages of build/packages on a Debian with nothing on it, made in a folder: installs the Debian package,
# starts both programs as a user, opens each kind of file as a desktop does, removes the package and looks for what is
# left; then unpacks the portable folder on a system without Qt and starts it. Takes some minutes and the network.
#   scripts/try_package.sh [FOLDER]     (a new one that is removed at the end, when none is named)
# Needs root and mmdebstrap.
set -euo pipefail
cd "$(dirname "$0")/.."
deb="$(echo build/packages/*.deb)" tarball="$(echo build/packages/*.tar.gz)"
if [ "$(id -u)" -ne 0 ] || [ ! -e "$deb" ] || ! command -v mmdebstrap >/dev/null; then
  echo "try_package.sh: needs root, mmdebstrap, and what package.sh makes" >&2
  exit 77
fi
root="${1:-}"
if [ -z "$root" ]; then
  root="$(mktemp -d)"
  remove="$root"
fi
fail() { echo "try_package.sh: $1" >&2; exit 1; }
inside() { chroot "$root" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
  DEBIAN_FRONTEND=noninteractive "$@"; }
as_player() { inside su player -c "export HOME=/home/player XDG_RUNTIME_DIR=/home/player/run; cd; mkdir -m 700 -p run; $1"; }

codename="$(. /etc/os-release && echo "$VERSION_CODENAME")"
[ -d "$root/etc/apt" ] || mmdebstrap --variant=minbase --mode=root "$codename" "$root" \
  "deb http://deb.debian.org/debian $codename main" "deb http://deb.debian.org/debian-security $codename-security main"
cp /etc/resolv.conf "$root/etc/"
cp /etc/apt/apt.conf.d/99* "$root/etc/apt/apt.conf.d/" 2>/dev/null || true
mount -t proc proc "$root/proc"
trap 'umount "$root/proc"; [ -z "${remove:-}" ] || rm -rf "$remove"' EXIT
cp "$deb" "$tarball" "$root/root/"
inside apt-get update -qq
inside apt-get install -y -qq --no-install-recommends xvfb xauth xdotool procps >/dev/null
inside id player >/dev/null 2>&1 || inside useradd -m player

# --- The portable folder, while there is no Qt here but what a desktop has.
inside apt-get install -y -qq --no-install-recommends libfontconfig1 libgl1 libegl1 libopengl0 libx11-xcb1 \
  libglib2.0-0 libdbus-1-3 libasound2 fonts-dejavu-core >/dev/null
[ -z "$(inside find /usr/lib -name 'libQt6*')" ] || echo "try_package.sh: Qt is there already; this tries less" >&2
inside rm -rf /home/player/stick /home/player/.local /home/player/run
as_player "mkdir stick && tar -xzf - -C stick --strip-components=1" <"$tarball"

# Starts a command as a user on a display and ends the window that it opens, in order; the titles of the windows that
# were there are left in "titles". The data folder then has a game.
cat >"$root/home/player/visit.sh" <<'VISIT'
"$@" 2>said &
for i in $(seq 150); do
  sleep 0.2
  xdotool search --onlyvisible --name '^Tessaryn( \(.*\))?$' >/dev/null 2>&1 && break
done
sleep 3
xdotool search --onlyvisible --name . getwindowname %@ >titles
for i in $(seq 50); do
  pkill -TERM -x -u player tessaryn || break
  sleep 0.2
done
[ ! -s said ]
VISIT
visit() {  # data folder, command
  as_player "xvfb-run -a sh visit.sh $2" || fail "$2: $(cat "$root/home/player/said")"
  [ -s "$root$1/default.crp" ] || fail "$2: nothing is kept in $1"
}
visit /home/player/stick stick/tessaryn
as_player "stick/tessaryn-cli run --player Ann=1000 --script stick/samples/Sample1.bet --rolls 1000 >/dev/null" ||
  fail "the portable command line doesn't play"
[ ! -e "$root/home/player/.local/share/tessaryn" ] || fail "the portable copy wrote elsewhere"
as_player "rm -r stick; ls -A" >"$root/before"

# --- The Debian package.
inside apt-get install -y -qq --no-install-recommends libglib2.0-bin desktop-file-utils shared-mime-info man-db >/dev/null
inside apt-get install -y -qq --reinstall --no-install-recommends "/root/$(basename "$deb")" >/dev/null 2>&1 || fail "the package can't be installed"
data=/home/player/.local/share/tessaryn
[ "$(as_player "tessaryn-cli --version")" = "$(as_player "tessaryn --version")" ] || fail "versions differ"
as_player "man -P cat tessaryn-cli" | grep -c lab >/dev/null || fail "no manual"
as_player "cp /usr/libexec/tessaryn/samples/Sample1.bet line.bet
  tessaryn-cli run --player Ann=500 --rolls 9 --set ShooterBetRule=0 --record two.rol >/dev/null
  tessaryn-cli probabilities fair.prb --new >/dev/null
  printf 'join 1 Ann 500\nsave evening.crp\nset ShooterBetRule 0\nroll 4 3\nnewsession keeplogs\n' | tessaryn-cli play >/dev/null
  cp .local/share/tessaryn/ann.slg old.slg
  cp evening.crp .local/share/tessaryn/default.crp"
visit $data tessaryn
# What a desktop makes of each kind, and the window that comes up.
while read -r file kind title; do
  type="$(as_player "gio info -a standard::content-type $file" | awk '/content-type/ { print $2 }')"
  [ "$type" = "application/x-tessaryn-$kind" ] || fail "$file is of type $type"
  as_player "gio mime $type" | grep -c '^Default.*tessaryn.desktop' >/dev/null || fail "nothing opens $type"
  as_player "cp evening.crp .local/share/tessaryn/default.crp"
  visit $data "gio open $file"
  grep -q "$title" "$root/home/player/titles" || fail "$file: no window $title, but $(cat "$root/home/player/titles")"
  echo "$file: $type, $title"
done <<'KINDS'
evening.crp game Tessaryn (evening.crp)
line.bet script Auto-Bet - Ann - line.bet
two.rol rolls Dice Roll Files
fair.prb probabilities Percentage Dice
old.slg sessions Sessions
KINDS
# Nobody writes into what the system has installed, not even who may.
inside env HOME=/root tessaryn-cli run --player Ann=500 --rolls 9 --set ShooterBetRule=0 >/dev/null
inside dpkg --verify tessaryn
[ -z "$(inside find /usr/libexec/tessaryn -newer /usr/share/doc/tessaryn/copyright -name '*.crp')" ] ||
  fail "a game was written into the system"
inside apt-get purge -y -qq tessaryn >/dev/null
left="$(inside find / -xdev -path /proc -prune -o -path /home -prune -o -path /root -prune -o -path /var/cache -prune -o \
  -iname '*tessaryn*' -print; inside grep -rls tessaryn /usr/share/mime /usr/share/applications /var/lib/dpkg/info)" || true
[ -z "$left" ] || fail "left behind: $left"
echo "The packages install, run, open their files and leave nothing behind."
