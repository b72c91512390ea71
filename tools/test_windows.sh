#!/usr/bin/env bash
# Builds the preset of Windows and runs its tests by Wine, on a display of their own.
# usage: tools/test_windows.sh    as `./test windows`
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

"$root/tools/install_packages.sh" windows
"$root/tools/build_windows_sqlite.sh" x86_64-w64-mingw32 "$root/build/sqlite-x86_64"
"$root/tools/build.sh" windows all

# The tests get a home of their own, so that they neither read nor change what the user has.
home=$(mktemp -d)
prefix=$root/build/wine
end() {
  # Wine's server would wait for another program.
  WINEPREFIX=$prefix wineserver --kill || true
  rm -rf -- "$home"
}
trap end EXIT
export HOME=$home LC_ALL=C.UTF-8 TZ=UTC WINEDEBUG=-all
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS WINEPREFIX

run_tests() {
  # Makes the prefix, which takes longer than a test may.
  "$root/tools/wine.sh" "$prefix" cmd /c exit
  "$root/tools/with_xvfb.py" ctest --test-dir "$root/build/windows" --parallel "$(nproc)" --output-on-failure \
    --no-tests=error --output-junit "$root/build/windows/test_results.xml" </dev/null
}
status=0
log=$home/ctest.log
run_tests 2>&1 | tee "$log" || status=$?
# The verdict once more, so that it is the last line whatever ctest lists after it.
grep -E '^[0-9]+% tests passed, [0-9]+ tests failed out of [0-9]+' "$log" || true
exit "$status"
