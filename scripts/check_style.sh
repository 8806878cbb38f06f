#!/usr/bin/env bash
# Style, as the CI asks for it.
#   scripts/check_style.sh format        every C++ file is as clang-format 14 has it
#   scripts/check_style.sh tidy [BASE]   clang-tidy has nothing to say of the sources of src/ that changed since
#                                        BASE, by default since the branch left its upstream; a changed header
#                                        counts for the source beside it.
set -euo pipefail
cd "$(dirname "$0")/.."

tool_of_version_14() {
  local tool
  for tool in "$1-14" "$1"; do
    if command -v "$tool" >/dev/null && "$tool" --version | grep -q 'version 14\.'; then
      echo "$tool"
      return
    fi
  done
  echo "$1 14 is missing; other versions judge otherwise." >&2
  return 1
}

check_format() {
  local tool
  tool=$(tool_of_version_14 clang-format)
  git ls-files -z '*.cpp' '*.h' | xargs -0 "$tool" --dry-run -Werror
}

changed_sources() {
  local file
  git diff --name-only --diff-filter=d "$1" -- 'src/*.cpp' 'src/*.h' | while read -r file; do
    [ -f "${file%.*}.cpp" ] && echo "${file%.*}.cpp"
  done | sort -u
}

check_tidy() {
  local tool base sources
  tool=$(tool_of_version_14 clang-tidy)
  base=${1:-$(git merge-base HEAD '@{upstream}' 2>/dev/null || git merge-base HEAD origin/main 2>/dev/null || git rev-parse -q --verify HEAD~1 || true)}
  [ -n "$base" ] || return 0  # a checkout without a past
  mapfile -t sources < <(changed_sources "$base")
  [ ${#sources[@]} -eq 0 ] && return
  cmake --preset release >/dev/null
  printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$(nproc)" "$tool" -p build/release --quiet --warnings-as-errors='*'
}

case "${1:-}" in
  format) check_format ;;
  tidy) check_tidy "${2:-}" ;;
  *) echo "usage: scripts/check_style.sh format | tidy [BASE]" >&2; exit 2 ;;
esac
