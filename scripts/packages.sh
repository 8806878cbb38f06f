#!/usr/bin/env bash
# The one list of what the project needs from the system, and its installation. Sourced by run.sh and
# test.sh and .ci/run; installs only what is missing.
set -euo pipefail

PACKAGES=(
  g++ cmake ninja-build pkg-config ccache
  libcli11-dev nlohmann-json3-dev libreadline-dev
  libgtest-dev libbenchmark-dev
  libqscintilla2-qt6-dev
  qt6-base-dev qt6-multimedia-dev qt6-svg-dev libgl1-mesa-dri fonts-dejavu-core
  qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
  xvfb xdotool poppler-utils
)
STYLE_PACKAGES=(clang-format)  # for .ci/run alone
PACKAGE_PACKAGES=(dpkg-dev lintian desktop-file-utils appstream shared-mime-info patchelf)  # for package.sh alone

# Beside PACKAGES those that it is given.

install_missing_packages() {
  local wanted=("${PACKAGES[@]}" "$@")
  if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian-like system; please install the equivalents of: ${wanted[*]}" >&2
    return 0
  fi
  local missing=()
  for package in "${wanted[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}" >&2
  local sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  if ! $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" >/dev/null 2>&1; then
    $sudo apt-get update -qq
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" >/dev/null
  fi
}

# Configures a preset once and builds it, or the targets named after it alone. A build folder made from another
# place is made anew.
build_preset() {
  local preset="$1"
  shift
  local cache="build/$preset/CMakeCache.txt"
  if [ -f "$cache" ] && ! grep -q "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd)\$" "$cache"; then
    rm -rf "build/$preset"
  fi
  # With these ccache knows precompiled headers again.
  export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
  cmake --preset "$preset" ${CI:+-DTESSARYN_WERROR=ON} >/dev/null  # warnings stop the build where nobody reads them
  cmake --build --preset "$preset" ${1:+--target "$@"}
}
