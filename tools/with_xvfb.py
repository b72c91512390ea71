#!/usr/bin/env python3
"""Runs a command on an X display of its own, without a window manager, and ends the display with it.

usage: tools/with_xvfb.py COMMAND [ARGUMENT...]
"""

import sys

import private_display


def main(command: list[str]) -> int:
    if not command:
        print(__doc__, file=sys.stderr)
        return 2
    private_display.exit_on_signals()
    server = ["Xvfb", "-screen", "0", "1600x1200x24"]
    with private_display.private_folder() as folder, private_display.display(folder, server) as environment:
        return private_display.run(command, environment)


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except (private_display.DisplayError, OSError) as error:
        sys.exit(str(error))
