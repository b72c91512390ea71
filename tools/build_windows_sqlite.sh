#!/usr/bin/env bash
# Makes SQLite for Windows out of the source package of this machine's Debian, which has no such library.
# usage: tools/build_windows_sqlite.sh TRIPLE FOLDER    TRIPLE: x86_64-w64-mingw32 or i686-w64-mingw32
# Leaves FOLDER/include/sqlite3.h and FOLDER/lib/libsqlite3.a, and does nothing where they are of the newest version.
set -euo pipefail

if [ $# -ne 2 ]; then
  sed -n '2,4s/^# //p' -- "${BASH_SOURCE[0]}" >&2
  exit 2
fi
triple=$1
mkdir -p -- "$2"
folder=$(cd -- "$2" && pwd)

version=$(dpkg-query -W -f '${source:Version}' libsqlite3-0)
if [ "$(cat -- "$folder/version" 2>/dev/null)" = "$version" ]; then exit 0; fi

work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
mkdir -p -- "$work"/{lists/partial,archives/partial,source,build}
# The origin is Debian or Ubuntu.
source /etc/os-release
# Sources from where this machine's packages come, listed apart so that its own lists stay as they are.
apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Identifier: Packages' "Origin: ${ID^}" |
  sort -u >"$work/sources.list"
apt_get() {
  apt-get -qq -o Dir::Etc::SourceList="$work/sources.list" -o Dir::Etc::SourceParts=/dev/null \
    -o Dir::State::Lists="$work/lists" -o Dir::Cache::Archives="$work/archives" -o Dir::Cache::pkgcache= \
    -o Dir::Cache::srcpkgcache= -o APT::Sandbox::User="$(id -un)" "$@"
}
apt_get update
(cd -- "$work/source" && apt_get source "sqlite3=$version") >"$work/log" 2>&1 || {
  tail -n 20 -- "$work/log" >&2
  exit 1
}
package=$(find "$work/source" -mindepth 1 -maxdepth 1 -type d)

# The whole library in one file, which the package's own programs put together.
(cd -- "$work/build" && "$package/configure" --disable-tcl && make -j"$(nproc)" sqlite3.c) >"$work/log" 2>&1 || {
  tail -n 20 -- "$work/log" >&2
  exit 1
}
# As Debian builds its own, as far as the component needs it.
"$triple-gcc-posix" -O2 -DNDEBUG -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_ENABLE_PREUPDATE_HOOK \
  -DSQLITE_SECURE_DELETE -DSQLITE_ENABLE_DBSTAT_VTAB -DSQLITE_ENABLE_UNLOCK_NOTIFY -DSQLITE_MAX_VARIABLE_NUMBER=250000 \
  -DSQLITE_LIKE_DOESNT_MATCH_BLOBS -DHAVE_ISNAN \
  -c "$work/build/sqlite3.c" -o "$work/sqlite3.o"
mkdir -p -- "$folder/include" "$folder/lib"
"$triple-ar" rcs "$folder/lib/libsqlite3.a" "$work/sqlite3.o"
cp -- "$work/build/sqlite3.h" "$folder/include/sqlite3.h"
printf '%s\n' "$version" >"$folder/version"
