#!/usr/bin/env bash
# Builds the Debian packages of what is committed, checks them with lintian, and lists them with their sizes.
# usage: tools/make_packages.sh [FOLDER]    FOLDER: where they go, build/packages unless said
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
[ $# -le 1 ] || {
  sed -n 's/^# usage: /usage: /p' -- "${BASH_SOURCE[0]}" >&2
  exit 2
}
packages=$(realpath -m -- "${1:-$root/build/packages}")

"$root/tools/install_packages.sh" build package

# A tree of its own: the build leaves files in debian/, and other presets are none of its business. Always in the same
# place, so that a compiler's cache, which the environment may name, knows it again.
source=$packages/source
rm -rf -- "$source"
mkdir -p -- "$source"
rm -f -- "$packages"/*.deb "$packages"/*.buildinfo "$packages"/*.changes
git -C "$root" archive HEAD | tar -x -C "$source"

log=$packages/build.log
printf 'Building the packages in %s; this takes a while (%s tells how far it is).\n' "$packages" "$log" >&2
if ! (cd -- "$source" && dpkg-buildpackage --build=binary --unsigned-changes --unsigned-buildinfo) >"$log" 2>&1; then
  tail -n 40 -- "$log" >&2
  printf 'Building the packages failed.\n' >&2
  exit 1
fi
if grep -E -A 5 '^[^ ]+:[0-9]+:[0-9]+: warning:' -- "$log" >&2; then
  printf 'The packages do not compile clean.\n' >&2
  exit 1
fi
rm -rf -- "$source"
# It must not become another user where it is root already, as in a container.
lintian --allow-root --fail-on error,warning --tag-display-limit 0 -- "$packages"/*.changes
cd -- "$packages"
for package in *.deb; do
  printf '%9d  %s\n' "$(stat -c %s -- "$package")" "$package"
done
