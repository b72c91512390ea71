#!/usr/bin/env bash
# Installs the packages on a fresh root of this Debian, uses them there as their users do, and removes them again.
# usage, as root: tools/check_packages.sh [FOLDER]    FOLDER: with built packages; without it they are built first
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
[ "$(id -u)" -eq 0 ] || {
  printf 'A root file system of its own can only be made by root.\n' >&2
  exit 1
}
"$root/tools/install_packages.sh" package
packages=$(realpath -m -- "${1:-$root/build/packages}")
[ $# -eq 1 ] || "$root/tools/make_packages.sh" "$packages"
[ -n "$(find "$packages" -maxdepth 1 -name 'ferrowindctl_*.deb')" ] || {
  printf 'There are no packages in %s.\n' "$packages" >&2
  exit 1
}

work=$(mktemp -d)
trap 'rm -rf --one-file-system -- "$work"' EXIT
chmod 755 -- "$work"
fresh=$work/root

# The machine's own sources of packages, and how it reaches them.
mapfile -t sources < <(find /etc/apt -maxdepth 2 \( -name '*.sources' -o -name '*.list' \) -size +0)
apt-config dump Acquire >"$work/99acquire"
# shellcheck source=/dev/null
. /etc/os-release
printf 'Making a fresh root of %s.\n' "$PRETTY_NAME" >&2
mmdebstrap --quiet --mode=root --variant=minbase --setup-hook="copy-in $work/99acquire /etc/apt/apt.conf.d" \
  --include=ca-certificates "$VERSION_CODENAME" "$fresh" "${sources[@]}"
cp /etc/resolv.conf /etc/hosts "$fresh/etc/"

# What the story needs, in a folder that is no part of the system.
mkdir -- "$fresh/story"
cp -- "$packages"/*.deb "$root/tests/package/story" "$fresh/story/"
cp -R -- "$root/docs/examples" "$fresh/story/examples"

# Its mounts are in a name space of their own, so none outlives it, however it ends.
mapfile -t proxies < <(env | grep -iE '^(http|https|no)_proxy=' || true)
# shellcheck disable=SC2016  # The inner shell expands them.
unshare --mount --pid --fork -- bash -euc '
  mount -t proc proc "$0/proc"
  mount -t tmpfs tmpfs "$0/dev"
  mkdir -- "$0/dev/shm" "$0/dev/pts"
  for node in null zero full random urandom tty; do touch -- "$0/dev/$node"; mount --bind "/dev/$node" "$0/dev/$node"; done
  mount -t devpts -o newinstance,ptmxmode=0666 devpts "$0/dev/pts"
  ln -s pts/ptmx "$0/dev/ptmx"
  ln -s /proc/self/fd "$0/dev/fd"
  exec env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "${@}" \
    chroot "$0" bash /story/story' "$fresh" "${proxies[@]}" </dev/null
