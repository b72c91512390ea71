"""ferrowindctl undo and as-of: what a call changed is put back, and what a calendar was is read, on both engines."""

import csv
import io
import json
import os
import pty
import subprocess
import time
import unittest

import ferrowindctl
import server
import version_1
from ferrowindctl import DONE, NOT_DONE

USD_2027 = ("ID1=840", "Year1=2027")
FIELDS = ["ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"]


class PastTests:
    """What holds on every engine; `make` gives the URL of a database that does not exist yet."""

    def setUp(self):
        super().setUp()
        self.database = self.make()
        self.assert_run(DONE, "init", self.database, "--empty")

    def call(self, procedure, *arguments):
        return json.loads(self.assert_run(DONE, "call", self.database, procedure, *arguments, "--format", "json")[0])["results"]

    def days(self):
        return self.call("CldGetMain", *USD_2027)

    def make_exception(self, comment):
        self.call("CldIUMain", *USD_2027, "TID1=1", "ID2=1", "Day1=10", "ODate=2027-01-10", f"Comment={comment}")

    def entries(self):
        rows = json.loads(self.assert_run(DONE, "history", self.database, "--format", "json")[0])["results"][0]
        return [dict(zip(rows["fields"], row)) for row in rows["rows"]]

    def last_entry(self):
        return self.entries()[-1]["EntryID"]

    def undo(self, entry):
        return self.assert_run(DONE, "undo", self.database, entry)[0]

    def refuse_undo(self, entry):
        before = self.entries()
        _, errors = self.assert_run(NOT_DONE, "undo", self.database, entry)
        self.assertEqual(self.entries(), before)
        return errors

    def as_of(self, moment, *options):
        output, _ = self.assert_run(DONE, "as-of", self.database, "usd", "2027", moment, "--format", "json", *options)
        return json.loads(output)["results"]

    def test_undo_puts_back_what_a_call_changed_and_can_be_undone(self):
        self.call("CldIUMain", *USD_2027)
        ordinary = self.days()
        self.make_exception("Stock-taking")
        excepted = self.days()
        entry = self.last_entry()
        output = self.undo(entry)
        self.assertEqual(self.days(), ordinary)
        self.assertRegex(output, rf'\AThe entry {entry} of USD 2027, "Excepted 10 January 2027: Stock-taking" \(\S+Z, by \S+\) is undone\.\n'
                                 rf"That is the entry {self.last_entry()}, which can be undone itself\.\n\Z")
        self.undo(self.last_entry())
        self.assertEqual(self.days(), excepted)

    def test_undo_takes_a_created_calendar_away(self):
        self.call("CldIUMain", *USD_2027)
        self.undo(self.last_entry())
        self.assertEqual(self.call("CldAllInfo")[0]["rows"], [])

    def test_undo_refuses_what_a_later_call_changed(self):
        self.call("CldIUMain", *USD_2027)
        self.make_exception("Stock-taking")
        entry = self.last_entry()
        self.make_exception("Moving house")
        errors = self.refuse_undo(entry)
        self.assertIn(f'The entry {entry} of USD 2027, "Excepted 10 January 2027: Stock-taking" (', errors)
        self.assertIn("a later call changed the same", errors)
        later = self.last_entry()
        self.assertRegex(errors, rf'The newest call for the same is the entry {later} of USD 2027, "Excepted .*: Moving house" \(.*\); undo that first\n\Z')
        self.undo(later)

    def test_undo_names_the_later_call_for_what_is_no_calendar(self):
        self.assert_run(DONE, "currency", "rename", self.database, "SEK", "Crown")
        renamed = self.last_entry()
        self.assert_run(DONE, "currency", "rename", self.database, "NOK", "Crown of Norway")
        self.assert_run(DONE, "currency", "rename", self.database, "SEK", "Krone", "--code", "SEQ")
        later = self.last_entry()
        self.assert_run(DONE, "conventions", "set", self.database, "spot USD/CHF 1")
        self.assert_run(DONE, "book", "set", self.database, "EUR", "--delivered")
        book = self.last_entry()
        self.book_without_a_rule("EUR")
        self.assertRegex(self.refuse_undo(renamed), rf'The entry {renamed}, "Renamed the currency SEK \(.*\) to SEK \(Crown\)" \(.*'
                                                    rf'is the entry {later}, "Renamed the currency SEK \(Crown\) to SEQ \(Krone\)"')
        self.assertRegex(self.refuse_undo(book), rf'The entry {book} of EUR, "Added the rule book of EUR: .*'
                                                 rf'is the entry {book + 1} of EUR, "Changed the rule book of EUR: .*; undo that first\n')

    def book_without_a_rule(self, currency):
        book, _ = self.assert_run(DONE, "book", "show", self.database, currency)
        shorter = self.path("shorter.txt")
        shorter.write_text("".join(book.splitlines(keepends=True)[:-1]), encoding="utf-8")
        self.assert_run(DONE, "book", "set", self.database, currency, shorter)

    def test_undo_names_the_entry_that_has_undone_one_already(self):
        self.call("CldIUMain", *USD_2027)
        entry = self.last_entry()
        self.undo(entry)
        self.assertIn(f"is undone already: the entry {self.last_entry()} has undone it", self.refuse_undo(entry))

    def test_undo_asks_on_a_terminal_unless_it_is_told_not_to(self):
        self.call("CldIUMain", *USD_2027)
        entry = self.last_entry()
        for answer, options, changes in (("n\n", (), False), ("", ("--yes",), True)):
            screen, terminal = pty.openpty()
            self.addCleanup(os.close, screen)
            process = subprocess.Popen([ferrowindctl.PROGRAM, "undo", self.database, str(entry), *options], stdin=terminal,
                                       stdout=subprocess.DEVNULL, stderr=terminal)
            os.close(terminal)
            if answer:
                shown = self.read_until(screen, "[y/N] ")
                self.assertIn(f'Undo the entry {entry} of USD 2027, "Created the calendar USD 2027" (', shown)
                os.write(screen, answer.encode())
            self.assertEqual(process.wait(timeout=60), DONE if changes else NOT_DONE)
            self.assertEqual(self.call("CldAllInfo")[0]["rows"] == [], changes)

    def test_undo_refuses_an_entry_that_does_not_exist(self):
        self.call("CldIUMain", *USD_2027)
        for entry in ("0", "-1", "4711", "2147483647"):
            self.assertIn(f"The history has no entry {entry}", self.refuse_undo(entry))
        for entry in ("the last one", "99999999999", "1.5", ""):
            self.assertIn(f'"{entry}" is no number of an entry of the history', self.refuse_undo(entry))

    def test_as_of_prints_the_days_of_then(self):
        self.call("CldIUMain", *USD_2027)
        ordinary = self.days()
        # Entries are told apart by milliseconds.
        time.sleep(0.01)
        self.make_exception("Stock-taking")
        excepted = self.days()
        created, changed = [entry["Moment"] for entry in self.entries()]
        self.assertEqual(self.as_of(created), ordinary)
        self.assertEqual(self.as_of(changed), excepted)
        self.assertEqual(self.as_of("2999-12-31"), excepted)

    def test_as_of_has_the_forms_of_the_other_commands(self):
        self.call("CldIUMain", *USD_2027)
        table, _ = self.assert_run(DONE, "as-of", self.database, "USD", "2027", "2999-12-31")
        self.assertEqual(table.split()[:7], FIELDS)
        output, _ = self.assert_run(DONE, "as-of", self.database, "USD", "2027", "2999-12-31", "--format", "csv")
        rows = list(csv.reader(io.StringIO(output, newline="")))
        self.assertEqual(rows[0], FIELDS)
        self.assertEqual(len(rows), 366)

    def test_as_of_names_what_there_was_not(self):
        self.call("CldIUMain", *USD_2027)
        for arguments, text in ((("USD", "2027", "2020-01-01"), "There was no calendar USD/2027 at 2020-01-01T00:00:00.000Z"),
                                (("USD", "2028", "2999-12-31"), "There was no calendar USD/2028"),
                                (("QQQ", "2027", "2999-12-31"), "no currency QQQ"),
                                (("USD", "2027", "yesterday"), '"yesterday" is neither a date'),
                                (("USD", "soon", "2999-12-31"), '"soon" is no year, which has four digits'),
                                (("USD", "1899", "2999-12-31"), "Calendars are of the years 1900 to 3000, not 1899\n"),
                                (("USD", "3001", "2999-12-31"), "Calendars are of the years 1900 to 3000, not 3001\n")):
            with self.subTest(arguments=arguments):
                self.assertIn(text, self.assert_run(NOT_DONE, "as-of", self.database, *arguments)[1])

    def test_of_an_upgraded_database_reaches_back_to_the_upgrade(self):
        self.database = self.make_old()
        self.assert_run(DONE, "upgrade", self.database)
        _, errors = self.assert_run(NOT_DONE, "as-of", self.database, "EUR", "2026", "2020-01-01")
        self.assertIn("The history does not reach back to 2020-01-01", errors)
        output, _ = self.assert_run(DONE, "as-of", self.database, "EUR", "2026", "2999-12-31", "--format", "json")
        self.assertEqual(json.loads(output)["results"], self.call("CldGetMain", "ID1=978", "Year1=2026"))


class PastOfAFile(PastTests, ferrowindctl.InAFolder):

    def make(self):
        return self.url()

    def make_old(self):
        return version_1.make_file(self, "old.db")


class PastOnAServer(PastTests, ferrowindctl.InAFolder):

    def make(self):
        return server.Database(self).uri

    def make_old(self):
        return version_1.make_on_server(self).uri


if __name__ == "__main__":
    unittest.main()
