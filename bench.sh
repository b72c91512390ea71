#!/usr/bin/env bash
# Measures the optimised build against its peers: a table on standard output, the same figures in build/bench.json.
# A ratio over its limit is reported and is no failure, since times depend on what else the machine does.
# usage: ./bench.sh
#        ./bench.sh windows    what hosts on Windows notice, by Wine; figures in build/bench_windows.json
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
case $#:${1:-} in
  0:) system=native figures=build/bench.json ;;
  1:windows) system=windows figures=build/bench_windows.json ;;
  *)
    printf 'usage: ./bench.sh [windows]\n' >&2
    exit 2
    ;;
esac

# The benchmarks get a home of their own, so that they neither read nor change what the user has.
home=$(mktemp -d)
end() {
  # Wine's server would wait for another program.
  if [ "$system" = windows ]; then WINEPREFIX=$root/build/wine wineserver --kill || true; fi
  rm -rf -- "$home"
}
trap end EXIT

# Benchmarks of the native build have no display, and those for Windows one of their own.
if [ "$system" = native ]; then
  "$root/tools/install_packages.sh" build bench
  "$root/tools/build.sh" release benchmarks -DBUILD_TESTING=OFF -DFERROWIND_BENCHMARKS=ON
  programs=("$root"/build/release/bin/*_bench)
  run() { "$1" --out "$2"; }
  export QT_QPA_PLATFORM=offscreen
else
  "$root/tools/install_packages.sh" windows
  "$root/tools/build_windows_sqlite.sh" x86_64-w64-mingw32 "$root/build/sqlite-x86_64"
  "$root/tools/build.sh" windows benchmarks -DFERROWIND_BENCHMARKS=ON
  programs=("$root"/build/windows/bin/*_bench.exe)
  run() { "$root/tools/with_xvfb.py" "$root/tools/wine.sh" "$root/build/wine" "$1" --out "Z:$2"; }
  unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS WINEPREFIX
fi
mkdir -m 700 -- "$home/runtime"
export HOME=$home XDG_RUNTIME_DIR=$home/runtime
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME XDG_CONFIG_DIRS XDG_DATA_DIRS

lines=$home/lines
touch -- "$lines"
printf '%-58s %10s %10s %-4s %7s %7s\n' name ours peer unit ratio limit
for program in "${programs[@]}"; do
  if ! (cd -- "$home" && run "$program" "$lines"); then
    printf '%s failed.\n' "$(basename -- "$program")" >&2
    exit 1
  fi
done

# Each line is a JSON object; separated by commas they make a list.
{
  printf '[\n'
  sed '$!s/$/,/' -- "$lines"
  printf ']\n'
} >"$home/bench.json"
mv -- "$home/bench.json" "$root/$figures"
printf '%d measurements in %s\n' "$(wc -l <"$lines")" "$figures"
