"""An X server of one's own, and a program on it. Imported by with_xvfb.py and serve_remotely.py."""

import contextlib
import os
import pathlib
import secrets
import signal
import subprocess
import sys
import tempfile
from collections.abc import Iterator

ENDING_SIGNALS = (signal.SIGHUP, signal.SIGINT, signal.SIGTERM)


class DisplayError(Exception):
    """The display did not come up; the text says why."""


def end(process: subprocess.Popen) -> None:
    """Asks the process to end, insists after five seconds, and returns when it has ended."""
    process.terminate()
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:
        # A program that was asked while it started may have missed it.
        process.kill()
        process.wait()


class Signals:
    """What signals that ask this script to end lead to: it exits, so that everything is cleaned up on the way."""

    held = False
    noted = 0

    @classmethod
    def arrived(cls, number: int, _) -> None:
        # A second one must not interrupt the cleaning up.
        for ending in ENDING_SIGNALS:
            signal.signal(ending, signal.SIG_IGN)
        cls.noted = number
        if not cls.held:
            cls.exit_if_noted()

    @classmethod
    def exit_if_noted(cls) -> None:
        if cls.noted:
            sys.exit(128 + cls.noted)


def exit_on_signals() -> None:
    for number in ENDING_SIGNALS:
        signal.signal(number, Signals.arrived)


@contextlib.contextmanager
def running(command: list[str], **options) -> Iterator[subprocess.Popen]:
    # A process that has begun but is not known here yet could not be ended, so signals wait until it is.
    Signals.held = True
    try:
        process = subprocess.Popen(command, **options)
    finally:
        Signals.held = False
    try:
        Signals.exit_if_noted()
        yield process
    finally:
        end(process)


@contextlib.contextmanager
def private_folder() -> Iterator[pathlib.Path]:
    os.umask(0o077)
    with tempfile.TemporaryDirectory(prefix="ferrowind-") as folder:
        yield pathlib.Path(folder)


def write_authority(path: pathlib.Path, display: str, cookie: str) -> None:
    # The cookie goes over standard input, because everybody can read a command's arguments.
    subprocess.run(["xauth", "-q", "-f", str(path), "source", "-"], input=f"add {display} . {cookie}\n", text=True,
                   stderr=subprocess.DEVNULL, check=True)


@contextlib.contextmanager
def display(folder: pathlib.Path, server: list[str]) -> Iterator[dict[str, str]]:
    """Starts the server on a free display and yields the environment for its programs; no others can use it."""
    cookie = secrets.token_hex(16)
    # The server takes every cookie of its file, whichever display it stands under; clients look theirs up by number.
    write_authority(folder / "server.authority", ":0", cookie)
    read_end, write_end = os.pipe()
    with open(folder / "server.log", "w+b") as log, open(read_end, "rb") as number_pipe:
        command = [*server, "-displayfd", str(write_end), "-nolisten", "tcp", "-auth", str(folder / "server.authority")]
        # In a session of its own, so that Ctrl+C reaches the programs on the display and not the display first.
        with running(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log, pass_fds=[write_end],
                     start_new_session=True):
            os.close(write_end)
            # The line ends when the server is ready, and the pipe when it has died.
            number = number_pipe.readline().decode("ascii").strip()
            if not number:
                log.seek(0)
                raise DisplayError(f"{server[0]} did not start.\n{log.read().decode(errors='replace')}")
            write_authority(folder / "client.authority", f":{number}", cookie)
            environment = {**os.environ, "DISPLAY": f":{number}", "XAUTHORITY": str(folder / "client.authority"),
                           "QT_QPA_PLATFORM": "xcb"}
            environment.pop("WAYLAND_DISPLAY", None)
            yield environment


def run(command: list[str], environment: dict[str, str]) -> int:
    """Runs the command to its end; its exit status as a shell gives it."""
    with running(command, env=environment) as process:
        status = process.wait()
    return status if status >= 0 else 128 - status
