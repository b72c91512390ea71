#!/usr/bin/env python3
"""Runs a program on a display of its own that can be reached by VNC, from this machine only and with a password.

usage: tools/serve_remotely.py PROGRAM [ARGUMENT...]
"""

import getpass
import pathlib
import secrets
import socket
import subprocess
import sys

import private_display

PORTS = range(5901, 6000)
# Letters and digits that look alike are left out.
PASSWORD_CHARACTERS = "abcdefghijkmnopqrstuvwxyzABCDEFGHJKLMNPQRSTUVWXYZ23456789"
# VNC looks at no more than these.
PASSWORD_LENGTH = 8

INSTRUCTIONS = """The window is on VNC port {port} of this machine; it accepts connections from this machine only.
  Password: {password}
On your own machine, open a tunnel and leave it open:
  ssh -L {port}:localhost:{port} {user}@{host}
and in a second terminal there start the viewer:
  vncviewer localhost::{port}
Closing the program's window, or Ctrl+C here, ends both the program and this display."""


def is_free(port: int) -> bool:
    for family, address in ((socket.AF_INET, "127.0.0.1"), (socket.AF_INET6, "::1")):
        try:
            with socket.socket(family) as probe:
                probe.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
                probe.bind((address, port))
        except OSError as error:
            # A machine without IPv6 has its ports free there.
            if family == socket.AF_INET or isinstance(error, PermissionError) or "in use" in str(error):
                return False
    return True


def serve(port: int, folder: pathlib.Path, command: list[str]) -> int:
    password = "".join(secrets.choice(PASSWORD_CHARACTERS) for _ in range(PASSWORD_LENGTH))
    password_file = folder / "password"
    password_file.write_bytes(
        subprocess.run(["tigervncpasswd", "-f"], input=f"{password}\n".encode(), capture_output=True, check=True).stdout)
    server = ["Xtigervnc", "-localhost=1", "-rfbport", str(port), "-SecurityTypes", "VncAuth", "-PasswordFile",
              str(password_file), "-desktop", "Ferrowind", "-geometry", "1280x800", "-depth", "24", "-AlwaysShared=1"]
    with private_display.display(folder, server) as environment, private_display.running(
            ["openbox"], env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL, start_new_session=True):
        print(INSTRUCTIONS.format(port=port, password=password, user=getpass.getuser(), host=socket.gethostname()),
              file=sys.stderr, flush=True)
        return private_display.run(command, environment)


def main(command: list[str]) -> int:
    if not command:
        print(__doc__, file=sys.stderr)
        return 2
    private_display.exit_on_signals()
    with private_display.private_folder() as folder:
        for port in filter(is_free, PORTS):
            attempt = folder / str(port)
            attempt.mkdir()
            try:
                return serve(port, attempt, command)
            except private_display.DisplayError as error:
                # Another display may have taken the port since it was found free.
                if is_free(port):
                    raise error
    raise private_display.DisplayError(f"No port from {PORTS[0]} to {PORTS[-1]} is free for VNC.")


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except (private_display.DisplayError, subprocess.CalledProcessError, OSError) as error:
        sys.exit(str(error))
