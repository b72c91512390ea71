#!/usr/bin/env bash
# Configures a preset and builds one of its targets, quietly while all goes well.
# usage: tools/build.sh PRESET TARGET [CMAKE_OPTION...]
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
preset=$1
target=$2
shift 2

# What the cache has to overlook to keep objects that use precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime

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
