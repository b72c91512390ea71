#!/usr/bin/env bash
# Runs a Windows program by Wine, in a prefix that is made when it is not there; shows its output when it has ended.
# usage: tools/wine.sh PREFIX PROGRAM [ARGUMENT...]
set -euo pipefail

if [ $# -lt 2 ]; then
  sed -n '2,3s/^# //p' -- "${BASH_SOURCE[0]}" >&2
  exit 2
fi
prefix=$1
shift
mkdir -p -- "$prefix"
WINEPREFIX=$(cd -- "$prefix" && pwd)
export WINEPREFIX
# Without those two libraries a prefix asks whether to download them, and without the program menus stay as they are.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d' WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}

if [ ! -e "$WINEPREFIX/made" ]; then
  # Programs that start at the same time wait for the first to make it.
  exec {lock}>"$WINEPREFIX/lock"
  flock "$lock"
  if [ ! -e "$WINEPREFIX/made" ]; then
    # Wine's own programs outlive this one, and must not keep what waits for its output waiting.
    wineboot --init </dev/null >"$WINEPREFIX/wineboot.log" 2>&1 {lock}>&-
    # A display without a window manager, which each window that opens would be waited for in vain.
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f </dev/null >>"$WINEPREFIX/wineboot.log" 2>&1 {lock}>&-
    wineserver --wait {lock}>&-
    touch -- "$WINEPREFIX/made"
  fi
  exec {lock}>&-
fi

# What Wine starts beside the program lives on and holds on to where the program's output goes. A pipe that somebody
# reads to its end would not end with the program, so this is a file.
output=$(mktemp)
trap 'rm -f -- "$output"' EXIT
status=0
wine "$@" >"$output" 2>&1 || status=$?
cat -- "$output"
exit "$status"
