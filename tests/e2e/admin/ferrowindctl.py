"""Runs the built ferrowindctl as its users do, in a folder of its own."""

import json
import datetime
import os
import pathlib
import pty
import select
import shutil
import sqlite3
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ["FERROWINDCTL"]

# The first year of delivered databases whose content matters, so that no test depends on today.
FIRST_YEAR = 2026

DONE, NOT_DONE, RETURNED_NON_ZERO, CALL_FAILED = range(4)


def run(*arguments, **options):
    # Whoever runs the tests by hand is not to be asked.
    if "input" not in options:
        options.setdefault("stdin", subprocess.DEVNULL)
    return subprocess.run([PROGRAM, *map(str, arguments)], stdout=options.pop("stdout", subprocess.PIPE),
                          stderr=subprocess.PIPE, timeout=120, **options)


def years_to_prepare():
    """This year, the next, and from September on the one after it: of these there must be calendars."""
    today = datetime.date.today()
    return range(today.year, today.year + (3 if today.month >= 9 else 2))


class InAFolder(unittest.TestCase):
    """A test with an empty folder, and what every test of the program asks again and again."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="ferrowindctl-"))
        self.addCleanup(shutil.rmtree, self.folder)

    def path(self, name="a.db"):
        return self.folder / name

    def url(self, name="a.db"):
        return f"sqlite:{self.path(name)}"

    def assert_run(self, status, *arguments, **options):
        """Runs the program, which must end with that status; its output as text without decoding its line ends."""
        result = run(*arguments, **options)
        errors = result.stderr.decode()
        self.assertEqual(result.returncode, status, errors)
        self.assertNotIn("Sanitizer", errors)
        # A failed call still prints its return value; a check that found faults prints them and nothing else.
        says_why = status == CALL_FAILED or (status == NOT_DONE and not result.stdout)
        # A procedure that refuses has returned why, and more is known of a text that is too long.
        if status != RETURNED_NON_ZERO:
            self.assertEqual(bool(errors), says_why, errors)
        return (result.stdout or b"").decode(), errors

    def call(self, procedure, *arguments, name="a.db"):
        """The record sets of a call that returns 0, each a list of dictionaries."""
        output, _ = self.assert_run(DONE, "call", self.url(name), procedure, *arguments, "--format", "json")
        document = json.loads(output)
        self.assertEqual(document["return"], 0)
        return [[dict(zip(rows["fields"], row)) for row in rows["rows"]] for rows in document["results"]]

    def open_from_outside(self, name="a.db"):
        """The database without the program's rules, for a test that looks into it or damages it."""
        database = sqlite3.connect(self.path(name), isolation_level=None)
        self.addCleanup(database.close)
        # Good enough for names that differ: the tests do not depend on how the program orders them.
        database.create_collation("FERROWIND_NAME", lambda left, right: (left > right) - (left < right))
        return database

    def start_on_a_terminal(self, *arguments):
        """The program with standard error on a terminal, whose other end is returned too."""
        screen, terminal = pty.openpty()
        self.addCleanup(os.close, screen)
        process = subprocess.Popen([PROGRAM, *arguments], stdout=subprocess.DEVNULL, stderr=terminal)
        os.close(terminal)
        return process, screen

    def read_until(self, screen, text, seen=""):
        """What the terminal shows until the text is among it, or until the program has closed it."""
        deadline = time.monotonic() + 60
        while text not in seen and time.monotonic() < deadline:
            if not select.select([screen], [], [], 1)[0]:
                continue
            try:
                seen += os.read(screen, 65536).decode()
            except OSError:
                break
        return seen


class WithADeliveredDatabase(InAFolder):
    """A test on a copy of one database that the program delivered."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.original = pathlib.Path(tempfile.mkdtemp(prefix="ferrowindctl-")) / "delivered.db"
        cls.addClassCleanup(shutil.rmtree, cls.original.parent)
        result = run("init", f"sqlite:{cls.original}", "--year", FIRST_YEAR)
        if result.returncode != DONE:
            raise AssertionError(result.stderr.decode())

    def setUp(self):
        super().setUp()
        shutil.copy2(self.original, self.path())
