#!/usr/bin/env bash
# Builds the fuzz targets, runs each on its kept inputs and then for a while on new ones; fails on the first crash.
# Inputs that crash are kept in build/fuzz/crashes/TARGET/. The kept corpus in fuzz/corpus is only read.
# As many targets run at once as there are processors.
# usage: tools/fuzz.sh [SECONDS_PER_TARGET|release [TARGET...]]
# 10 seconds and all targets unless said; "release", which is run before one, is ten minutes for each.
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
seconds=${1:-10}
[ "$seconds" != release ] || seconds=600
if [[ ! $seconds =~ ^[1-9][0-9]*$ ]]; then
  printf 'usage: tools/fuzz.sh [SECONDS_PER_TARGET|release [TARGET...]]\n' >&2
  exit 2
fi
shift $(($# > 0))

"$root/tools/install_packages.sh" build fuzz
"$root/tools/build.sh" fuzz fuzz_targets

build=$root/build/fuzz
if [ $# -gt 0 ]; then
  targets=("$@")
else
  # By the sources, so that the program of a target that is no more is not run.
  mapfile -t targets < <(cd -- "$root/fuzz" && find . -name '*_fuzz.cpp' -printf '%f\n' | sed 's/\.cpp$//' | sort)
fi

scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT

# Runs the target $1 with the remaining arguments; on a crash shows what it said.
run_target() {
  local target=$1 log=$scratch/$1.log
  shift
  if ! "$build/bin/$target" -artifact_prefix="$build/crashes/$target/" -timeout=10 -rss_limit_mb=2048 "$@" \
    >"$log" 2>&1; then
    printf '%s: FAILED; the input is in %s\n' "$target" "build/fuzz/crashes/$target/" >>"$log"
    cat -- "$log"
    exit 1
  fi
}

fuzz_target() {
  local target=$1 subject=${1%_fuzz}
  local kept=$root/fuzz/corpus/$subject working=$build/corpus/$subject
  rm -rf -- "$working"
  mkdir -p -- "$working" "$build/crashes/$target"
  cp -- "$kept"/* "$working"

  run_target "$target" "$kept"/*
  local options=(-max_total_time="$seconds" -print_final_stats=1)
  if [ -f "$root/fuzz/$subject.dict" ]; then options+=(-dict="$root/fuzz/$subject.dict"); fi
  run_target "$target" "${options[@]}" "$working"

  printf '%s: passed; %d kept inputs, then %d new ones in %d s\n' "$target" "$(find "$kept" -type f | wc -l)" \
    "$(sed -n 's/^stat::number_of_executed_units: *//p' "$scratch/$target.log")" "$seconds"
}

# As many at once as there are processors, each of which one target keeps busy. After a failure none is begun.
for target in "${targets[@]}"; do
  while [ "$(jobs -pr | wc -l)" -ge "$(nproc)" ]; do wait -n || true; done
  if [ -f "$scratch/failed" ]; then break; fi
  (
    trap '[ $? -eq 0 ] || touch -- "$scratch/failed"' EXIT
    fuzz_target "$target"
  ) &
done
wait
if [ -f "$scratch/failed" ]; then exit 1; fi
