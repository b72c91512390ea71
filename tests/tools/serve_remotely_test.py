#!/usr/bin/env python3
"""Runs tools/serve_remotely.py with small programs in place of the desktop program, and looks at it from outside."""

import os
import pathlib
import re
import signal
import socket
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(sys.argv.pop())
VNC_AUTHENTICATION = 2
LOOPBACK = {"0100007F", "00000000000000000000000001000000"}
LISTENING = "0A"


def listening_addresses(port):
    """The addresses, as the kernel writes them, that something listens on at that port."""
    found = set()
    for table in ("/proc/net/tcp", "/proc/net/tcp6"):
        for line in pathlib.Path(table).read_text(encoding="ascii").splitlines()[1:]:
            local, state = line.split()[1], line.split()[3]
            address, hexadecimal_port = local.split(":")
            if state == LISTENING and int(hexadecimal_port, 16) == port:
                found.add(address)
    return found


class ServeRemotely(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def start(self, program):
        environment = {**os.environ, "TMPDIR": str(self.folder)}
        environment.pop("DISPLAY", None)
        process = subprocess.Popen(
            [sys.executable, "-B", SCRIPT, "sh", "-c", program], env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE, text=True)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        if process.poll() is None:
            process.terminate()
        process.communicate()

    def instructions(self, process):
        """The port and the password, once the program on the display has said that it runs."""
        self.assertEqual(process.stdout.readline(), "running\n")
        text = ""
        for line in process.stderr:
            text += line
            if "ends both" in line:
                break
        port = int(re.search(r"VNC port (\d+)", text).group(1))
        self.assertIn(f"-L {port}:localhost:{port}", text)
        return port, re.search(r"Password: (\S+)", text).group(1)

    def test_the_display_is_reached_from_this_machine_only_and_by_password_only(self):
        # A handshake of protocol 3.8: both sides name the version, then the server lists its kinds of authentication.
        process = self.start("echo running; read line")
        port, password = self.instructions(process)
        addresses = listening_addresses(port)
        self.assertTrue(addresses)
        self.assertLessEqual(addresses, LOOPBACK)
        with socket.create_connection(("127.0.0.1", port), timeout=20) as connection:
            stream = connection.makefile("rwb")
            self.assertEqual(stream.read(12), b"RFB 003.008\n")
            stream.write(b"RFB 003.008\n")
            stream.flush()
            count = stream.read(1)[0]
            self.assertEqual(list(stream.read(count)), [VNC_AUTHENTICATION])
        self.assertEqual(len(password), 8)

    def test_what_it_keeps_is_readable_by_its_owner_only(self):
        process = self.start("echo running; read line")
        self.instructions(process)
        files = [path for path in self.folder.rglob("*")]
        self.assertIn("password", [path.name for path in files])
        for path in files:
            self.assertEqual(path.stat().st_mode & 0o077, 0, path)

    def test_the_display_refuses_a_program_without_its_authority_file(self):
        process = self.start("xdotool getdisplaygeometry >/dev/null || exit 9; "
                             "XAUTHORITY=/dev/null xdotool getdisplaygeometry >/dev/null 2>&1 && exit 8; exit 4")
        process.communicate()
        self.assertEqual(process.returncode, 4)

    def test_it_ends_with_the_programs_status_and_leaves_nothing_behind(self):
        process = self.start("echo running; read line; exit 7")
        port, _ = self.instructions(process)
        process.communicate("go on\n")
        self.assertEqual(process.returncode, 7)
        self.assertEqual(listening_addresses(port), set())
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_ending_it_ends_the_program_and_the_display(self):
        process = self.start("echo running; exec sleep 1000")
        port, _ = self.instructions(process)
        process.send_signal(signal.SIGTERM)
        process.communicate()
        self.assertEqual(process.returncode, 128 + signal.SIGTERM)
        self.assertEqual(listening_addresses(port), set())
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_two_of_them_run_beside_each_other(self):
        first = self.start("echo running; read line")
        second = self.start("echo running; read line")
        self.assertNotEqual(self.instructions(first)[0], self.instructions(second)[0])


if __name__ == "__main__":
    unittest.main()
