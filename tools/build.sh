#!/usr/bin/env bash
# Configures a preset and builds one of its targets, quietly while all goes well.
# usage: tools/build.sh PRESET TARGET [CMAKE_OPTION...]
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
preset=$1
target=$2
shift 2

log=$(mktemp)
trap 'rm -f -- "$log"' EXIT
# Presets are found in the current folder.
cd -- "$root"
if ! cmake --preset "$preset" "$@" >"$log" 2>&1; then
  cat -- "$log" >&2
  printf 'Configuring the preset %s failed.\n' "$preset" >&2
  exit 1
fi

build=(cmake --build "build/$preset" --target "$target")
printf 'Building %s (%s); the first time takes a few minutes.\n' "$target" "$preset" >&2
if [ -t 2 ]; then
  # The build's own one-line progress says how far it is.
  "${build[@]}" >&2
else
  "${build[@]}" -- --quiet >&2
fi
