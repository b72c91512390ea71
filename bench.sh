#!/usr/bin/env bash
# Measures the optimised build against its peers: a table on standard output, the same figures in build/bench.json.
# A ratio over its limit is reported and is no failure, since times depend on what else the machine does.
# usage: ./bench.sh
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
if [ $# -gt 0 ]; then
  printf 'usage: ./bench.sh\n' >&2
  exit 2
fi

"$root/tools/install_packages.sh" build bench
"$root/tools/build.sh" release benchmarks -DBUILD_TESTING=OFF -DFERROWIND_BENCHMARKS=ON

# The benchmarks get a home of their own, so that they neither read nor change what the user has.
home=$(mktemp -d)
trap 'rm -rf -- "$home"' EXIT
mkdir -m 700 -- "$home/runtime"
export HOME=$home XDG_RUNTIME_DIR=$home/runtime QT_QPA_PLATFORM=offscreen
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME XDG_CONFIG_DIRS XDG_DATA_DIRS

lines=$home/lines
touch -- "$lines"
printf '%-58s %10s %10s %-4s %7s %7s\n' name ours peer unit ratio limit
for program in "$root"/build/release/bin/*_bench; do
  if ! (cd -- "$home" && "$program" --out "$lines"); then
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
mv -- "$home/bench.json" "$root/build/bench.json"
printf '%d measurements in build/bench.json\n' "$(wc -l <"$lines")"
