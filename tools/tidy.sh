#!/usr/bin/env bash
# Runs the checks of .clang-tidy on the sources of the given folders; without one, on ferrowind and host.
# usage: tools/tidy.sh [FOLDER...]
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
[ $# -gt 0 ] || set -- ferrowind host
"$root/tools/install_packages.sh" build test tidy
# The build writes the headers that sources include and the flags that they are compiled with.
"$root/tools/build.sh" dev all

cd -- "$root"
find "$@" -name '*.cpp' -print0 |
  xargs -0 -r -n 1 -P "$(nproc)" clang-tidy --quiet -p build/dev --extra-arg=-Wno-unknown-warning-option
