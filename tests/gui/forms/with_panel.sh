#!/bin/sh
# Runs a program on a screen of its own, of which a panel at the top and at the left keeps a part for itself.
# usage: with_panel.sh PROGRAM [ARGUMENT...]
set -eu
# The screen forgets the panel with its last client, unless it is told not to.
exec xvfb-run --auto-servernum --server-args='-screen 0 1000x700x24 -noreset' sh -eu -c '
  xprop -root -f _NET_WORKAREA 32c -set _NET_WORKAREA "100, 50, 900, 650"
  # A desktop portal that is asked at the start would answer after the end of a program that waits for nothing.
  QT_NO_XDG_DESKTOP_PORTAL=1 QT_QPA_PLATFORM=xcb exec "$@"' with_panel "$@"
