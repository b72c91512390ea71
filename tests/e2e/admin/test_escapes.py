"""A hostile file: no text of it reaches the terminal as anything but text, and none looks like a line of the program."""

import json
import os
import pty
import re
import subprocess
import unittest

import ferrowindctl
from ferrowindctl import DONE, NOT_DONE

FAKE = "The database is in order."
HOSTILE = f"\r\n\n{FAKE}\n\x1b[2J\x1b]0;title\x07\x7f\u009b2J\u202eredro\u2066\u2028"
# Tables and columns of text that people see. Codes of currencies stay, since commands name them.
TEXTS = {"DicCcy": ("Name",), "CldHoliday": ("Name1", "Comment"), "CldDay": ("Comment",), "CldBook": ("Publisher", "Document"),
         "CldRecurrence": ("Name1", "Comment"), "CldHolidayType": ("Description1",),
         "CldHistory": ("UserName", "ProcedureName", "Moment")}
UNSAFE = re.compile("[\x00-\x09\x0b-\x1f\x7f-\x9f\u202a-\u202e\u2066-\u2069\u2028\u2029]")


def key(name):
    return name.strip(" ").lower()


class HostileFile(ferrowindctl.WithADeliveredDatabase):

    def setUp(self):
        super().setUp()
        database = self.open_from_outside()
        database.execute("PRAGMA ignore_check_constraints = ON")
        database.execute("PRAGMA foreign_keys = OFF")
        for (trigger,) in database.execute("SELECT name FROM sqlite_schema WHERE type = 'trigger'").fetchall():
            database.execute(f"DROP TRIGGER {trigger}")
        # As the program orders the names that it delivers, or the index of names would be damaged.
        database.create_collation("FERROWIND_NAME", lambda left, right: (key(left) > key(right)) - (key(left) < key(right)))
        columns = {table: {row[1] for row in database.execute(f"PRAGMA table_info({table})")} for table in TEXTS}
        for table, names in TEXTS.items():
            for name in names:
                self.assertIn(name, columns[table])
                number = "ID2" if table == "CldHoliday" else "''"
                database.execute(f"UPDATE {table} SET {name} = substr({name}, 1, 20) || ? || {number}", (HOSTILE,))
        database.execute(f'CREATE TABLE "x{HOSTILE}" (a)')
        database.close()

    def commands(self):
        url = self.url()
        return [("check", url), ("status", url), ("history", url), ("call", url, "CldAllInfo"), ("call", url, "CldGetBook"),
                ("call", url, "CldGetMain", "ID1=978", "Year1=2026"), ("call", url, "CldGetMarkedDays", "ID1=978"),
                ("call", url, HOSTILE), ("plan", url, "EUR", "2026"), ("plan", url, "EUR", "2030", "--all"), ("review", url),
                ("why", url, "EUR", "2026-12-25"), ("book", "show", url, "EUR"), ("book", "check", url, "ALL"),
                ("currency", "list", url), ("currency", "rename", url, "EUR", "--name", "Euro"), ("undo", url, "3"),
                ("apply", url, "ALL", "2030", "--yes"), ("upgrade", url), ("copy", url, self.url("copy.db")),
                ("as-of", url, "EUR", "2026", "2099-01-01")]

    def on_a_terminal(self, *command):
        """All that the program shows where both its outputs are a terminal."""
        screen, terminal = pty.openpty()
        process = subprocess.Popen([ferrowindctl.PROGRAM, *command], stdin=subprocess.DEVNULL, stdout=terminal, stderr=terminal)
        os.close(terminal)
        shown = b""
        try:
            while part := os.read(screen, 65536):
                shown += part
        except OSError:
            pass  # The program has closed it.
        os.close(screen)
        process.wait(60)
        # The line that tells how far a command is, is the program's own; and a terminal ends its lines by both.
        return re.sub("\r\x1b\\[K[^\r\x1b]*", "", shown.decode()).replace("\r\r\n", "\n").replace("\r\n", "\n")

    def assert_harmless(self, shown, fakes=0):
        self.assertIsNone(UNSAFE.search(shown), shown[:2000])
        self.assertEqual(len(re.findall(f"^{re.escape(FAKE)}", shown, re.MULTILINE)), fakes, shown[:2000])

    def test_shows_its_texts_escaped_in_every_command(self):
        seen = ""
        for command in self.commands():
            with self.subTest(command=command[:2]):
                shown = self.on_a_terminal(*command)
                self.assert_harmless(shown)
                seen += shown
        self.assertIn("\\n" + FAKE + "\\n\\x1b[2J", seen, "the texts were shown at all")

    def test_shows_formats_for_programs_escaped_on_a_terminal(self):
        for command in (("call", self.url(), "CldAllInfo"), ("history", self.url()), ("review", self.url())):
            for form in ("json", "csv"):
                with self.subTest(command=command[0], form=form):
                    self.assert_harmless(self.on_a_terminal(*command, "--format", form))

    def test_gives_programs_the_very_texts(self):
        database = self.open_from_outside()
        name = database.execute("SELECT Name1 FROM CldHoliday WHERE ID2 = 2").fetchone()[0]
        output, _ = self.assert_run(DONE, "call", self.url(), "CldAllInfo", "--format", "json")
        self.assertIsNone(UNSAFE.search(output.rstrip("\n")), "escaped as JSON does it")
        rules = json.loads(output)["results"][2]
        self.assertIn(name, [row[rules["fields"].index("Name1")] for row in rules["rows"]])
        output, _ = self.assert_run(DONE, "call", self.url(), "CldAllInfo", "--format", "csv")
        self.assertIn(name, output)


if __name__ == "__main__":
    unittest.main()
