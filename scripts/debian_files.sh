#!/usr/bin/env bash
# Makes an installation's documents what a Debian package has: changelog and copyright in Debian's form, texts and
# manuals packed, the licence as a link to the system's own.
#   scripts/debian_files.sh VERSION-RELEASE ROOT MAINTAINER
set -euo pipefail
cd "$(dirname "$0")/.."
version="$1" root="$2" maintainer="$3"
doc="$root/share/doc/tessaryn"
umask 022

grep -q "^## ${version%-*}, " CHANGELOG.md || {
  echo "debian_files.sh: CHANGELOG.md tells nothing of version ${version%-*}" >&2
  exit 1
}
gzip -9nf "$doc/CHANGELOG.md"
mv "$doc/CHANGELOG.md.gz" "$doc/changelog.gz"
gzip -9nf "$doc/README.md" "$root"/share/man/man1/*.1

# An entry for each version, its date as mail has it.
entry="" date=""
close_entry() { [ -z "$entry" ] || printf '\n -- %s  %s\n\n' "$maintainer" "$date"; }
while read -r line; do
  case "$line" in
    "## "*)
      close_entry
      entry="${line#\#\# }"
      date="$(LC_ALL=C date -u -d "${entry#*, }" '+%a, %d %b %Y 00:00:00 +0000')"
      printf 'tessaryn (%s-%s) unstable; urgency=medium\n\n' "${entry%%,*}" "${version##*-}"
      ;;
    ?*) [ -z "$entry" ] || fold -s -w 70 <<<"${line#- }" | sed -e '1s/^/  * /' -e '2,$s/^/    /' -e 's/ *$//' ;;
  esac
done <CHANGELOG.md >"$doc/changelog.Debian"
close_entry | sed '$d' >>"$doc/changelog.Debian"
gzip -9nf "$doc/changelog.Debian"
mkdir -p "$root/share/lintian/overrides"
echo "tessaryn: initial-upload-closes-no-bugs" >"$root/share/lintian/overrides/tessaryn"

cat >"$doc/copyright" <<TEXT
Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: Tessaryn
Upstream-Contact: $maintainer

Files: *
Copyright: 2026 Tessaryn maintainers
License: GPL-3+

License: GPL-3+
 This program is free software: you can redistribute it and/or modify it under the terms of the GNU General Public
 License as published by the Free Software Foundation, either version 3 of the License, or (at your option) any
 later version.
 .
 This program is distributed in the hope that it will be useful, but WITHOUT ANY WARRANTY; without even the implied
 warranty of MERCHANTABILITY or FITNESS FOR A PARTICULAR PURPOSE. See the GNU General Public License for more
 details.
 .
 On Debian systems the full text of the GNU General Public License version 3 is in
 /usr/share/common-licenses/GPL-3.
TEXT
ln -sf ../../share/common-licenses/GPL-3 "$root/libexec/tessaryn/LICENSE"
