#!/usr/bin/env bash
# Compares the delivered rule books with QuantLib's calendars and lists the days on which they differ; fails when
# docs/delivered-calendars.md does not say who is right on one of them.
# usage: tools/compare_with_quantlib.sh
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
if [ $# -gt 0 ]; then
  printf 'usage: tools/compare_with_quantlib.sh\n' >&2
  exit 2
fi

"$root/tools/install_packages.sh" build compare
"$root/tools/build.sh" release compare_with_quantlib -DBUILD_TESTING=OFF -DFERROWIND_COMPARISON=ON
"$root/build/release/bin/compare_with_quantlib" "$root/docs/delivered-calendars.md"
