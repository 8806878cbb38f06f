#!/usr/bin/env bash
# Packs a build into a folder that runs from anywhere, a stick say, and keeps what it writes beside itself. It brings
# every library but those that any Linux desktop has and that must be the machine's own: of the system, of X and GL, of
# fonts and of GLib.
#   scripts/make_portable.sh BUILD OUT      leaves OUT/tessaryn-VERSION-linux-MACHINE.tar.gz
# Needs patchelf.
set -euo pipefail
cd "$(dirname "$0")/.."
build="$1" out="$2"
version="$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")"
name="tessaryn-$version-linux-$(uname -m)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
umask 022

cmake --install "$build" --prefix "$work/installed" --strip >/dev/null
folder="$work/$name"
mv "$work/installed/libexec/tessaryn" "$folder"
cp "$work/installed/share/doc/tessaryn/"*.md "$work/installed/share/icons/hicolor/scalable/apps/tessaryn.svg" "$folder"

HOST='^(ld-linux|libc\.|libm\.|libdl\.|librt\.|libpthread\.|libresolv\.|libutil\.|libgcc_s|libstdc\+\+|libGL|libEGL'
HOST+='|libOpenGL|libX11|libxcb\.so|libXext|libfontconfig|libfreetype|libexpat|libz\.|libdrm|libgbm|libasound|libglib-'
HOST+='|libgobject-|libgio-|libgmodule-|libgthread-|libdbus-|linux-vdso)'

# Brings a file's libraries, and theirs, from where the system finds them.
bring() {
  local needed found
  for needed in $(objdump -p "$1" | awk '$1 == "NEEDED" { print $2 }'); do
    if [[ $needed =~ $HOST || -e "$folder/lib/$needed" ]]; then continue; fi
    found="$(ldd "$1" | awk -v name="$needed" '$1 == name { print $3 }')"
    [ -n "$found" ] || { echo "make_portable.sh: $needed, which $1 needs, is missing" >&2; exit 1; }
    cp -L "$found" "$folder/lib/$needed"
    echo "$found" >>"$work/taken"
    bring "$found"
  done
}

mkdir "$folder/lib" "$folder/plugins"
printf '[Paths]\nPlugins = plugins\nTranslations = translations\n' >"$folder/qt.conf"
plugins="$(dirname "$(ldd "$folder/tessaryn" | awk '$1 == "libQt6Core.so.6" { print $3 }')")/qt6/plugins"
for plugin in platforms/libqxcb platforms/libqoffscreen platforms/libqwayland-generic iconengines/libqsvgicon \
    imageformats/libqsvg printsupport/libcupsprintersupport multimedia/libgstreamermediaplugin \
    platforminputcontexts/libcomposeplatforminputcontextplugin platforminputcontexts/libibusplatforminputcontextplugin; do
  [ -e "$plugins/$plugin.so" ] || continue
  mkdir -p "$folder/plugins/${plugin%/*}"
  cp "$plugins/$plugin.so" "$folder/plugins/${plugin%/*}/"
  echo "$plugins/$plugin.so" >>"$work/taken"
  bring "$plugins/$plugin.so"
done
bring "$folder/tessaryn"
bring "$folder/tessaryn-cli"

# Each looks for the others where they lie now. What is older than this also tells those below where to look.
patchelf --force-rpath --set-rpath '$ORIGIN/lib' "$folder/tessaryn" "$folder/tessaryn-cli"
patchelf --force-rpath --set-rpath '$ORIGIN' "$folder"/lib/*
patchelf --force-rpath --set-rpath '$ORIGIN/../../lib' "$folder"/plugins/*/*.so

# The licences of what was brought.
if command -v dpkg-query >/dev/null; then
  mkdir "$folder/licences"
  while read -r file; do
    real="$(realpath "$file")"
    package="$(dpkg-query -S "$real" "${real#/usr}" 2>/dev/null | head -1 | cut -d: -f1 || true)"
    [ -z "$package" ] || cp -L "/usr/share/doc/$package/copyright" "$folder/licences/$package.txt"
  done <"$work/taken"
fi
tar -C "$work" --owner=0 --group=0 --sort=name -czf "$out/$name.tar.gz" "$name"
