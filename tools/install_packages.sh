#!/usr/bin/env bash
# Installs the packages of the named groups of packages.txt that are missing; touches nothing when none is.
# usage: tools/install_packages.sh GROUP...
set -euo pipefail

list=$(dirname -- "${BASH_SOURCE[0]}")/packages.txt

fail() {
  printf '%s: %s\n' "$(basename -- "$0")" "$1" >&2
  exit 1
}

# The lines "group package" of the list, without comments.
entries() {
  sed -e 's/#.*//' -e '/^[[:space:]]*$/d' -- "$list"
}

packages_of() {
  entries | while read -r group package; do
    if [ "$group" = "$1" ]; then printf '%s\n' "$package"; fi
  done
}

is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' -- "$1" 2>/dev/null)" = installed ]
}

# Lines that start an administrator's command: none for root, sudo for others.
administrator() {
  if [ "$(id -u)" -eq 0 ]; then
    return
  fi
  command -v sudo >/dev/null ||
    fail "these packages are missing and only root or sudo can install them; as root, run: apt-get install ${missing[*]}"
  printf 'sudo\n'
  # Without a terminal nobody can answer a question about a password, so sudo must not ask one.
  if [ ! -t 0 ]; then printf -- '-n\n'; fi
}

[ $# -gt 0 ] || fail "no group given; the groups are: $(entries | cut -d' ' -f1 | sort -u | xargs)"
wanted=()
for group in "$@"; do
  mapfile -t packages < <(packages_of "$group")
  [ ${#packages[@]} -gt 0 ] || fail "no group '$group' in packages.txt; the groups are: $(entries | cut -d' ' -f1 | sort -u | xargs)"
  wanted+=("${packages[@]}")
done
mapfile -t wanted < <(printf '%s\n' "${wanted[@]}" | sort -u)

command -v dpkg-query >/dev/null ||
  fail "this is not a Debian system; install the counterparts of these packages yourself: ${wanted[*]}"
missing=()
for package in "${wanted[@]}"; do
  is_installed "$package" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

become=$(administrator)
mapfile -t become <<<"$become"
[ -n "${become[0]}" ] || become=()
log=$(mktemp)
trap 'rm -f -- "$log"' EXIT
apt_get() {
  "${become[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 \
    apt-get -qq -y -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@" </dev/null >>"$log" 2>&1
}
printf 'Installing %d missing packages: %s\n' "${#missing[@]}" "${missing[*]}" >&2
# The package lists that are there may be good enough when the update fails, so only the installation decides.
apt_get update || printf 'The package lists could not be updated; trying with those that are there.\n' >&2
if ! apt_get install --no-install-recommends -- "${missing[@]}"; then
  tail -n 20 -- "$log" >&2
  fail "could not install: ${missing[*]}"
fi
for package in "${missing[@]}"; do
  is_installed "$package" || fail "the package $package is still missing after its installation"
done
