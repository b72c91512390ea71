#!/usr/bin/env bash
# Makes the pictures of the native windows in docs/pictures/ anew, by Wine. Look at them before you commit them.
# usage: tools/make_windows_pictures.sh FERROWINDCTL    with build/windows as `./test windows` leaves it
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

"$root/tools/install_packages.sh" windows pictures
"$root/tools/with_xvfb.py" "$root/tools/windows_pictures.py" "$@"
