#!/usr/bin/env bash
# Installs what is missing, builds the release and packs it into build/packages: a Debian package, and a portable folder
# that brings the libraries it needs.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/packages.sh
install_missing_packages "${PACKAGE_PACKAGES[@]}"
build_preset release tessaryn tessaryn-cli tessaryn_manuals >&2

out="$PWD/build/packages"
rm -rf "$out"
mkdir -p "$out"
(umask 022 && cd build/release && cpack -B "$out" >"$out/cpack.log") || { cat "$out/cpack.log" >&2; exit 1; }
rm -r "$out/_CPack_Packages" "$out/cpack.log"
lintian --fail-on error "$out"/*.deb
scripts/make_portable.sh build/release "$out"
ls -sh "$out"
