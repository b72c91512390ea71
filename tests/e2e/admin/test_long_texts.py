"""Texts that are longer than what is stored: which one it is, and what becomes of those from before there were limits."""

import unittest

import ferrowindctl
import server
import version_1
from ferrowindctl import DONE, NOT_DONE, RETURNED_NON_ZERO

VERSION_4 = version_1.SCRIPTS.parent / "version_4"
RULE = "The comment of the rule 1 has 5000 characters; it may have 4000 at most"


class RefusedTexts(ferrowindctl.InAFolder):

    def test_are_named_with_their_length_by_call(self):
        self.assert_run(DONE, "init", self.url(), "--empty")
        output, errors = self.assert_run(RETURNED_NON_ZERO, "call", self.url(), "CldIUCelebrate", "Name1=" + "é" * 201,
                                         "TID1=2", "WD=1")
        self.assertEqual(output, "Return value: 7\n")
        self.assertEqual(errors, "ferrowindctl: The name has 201 characters; it may have 200 at most\n")
        _, errors = self.assert_run(RETURNED_NON_ZERO, "call", self.url(), "CldIUCelebrate", "Name1=A", "TID1=9")
        self.assertEqual(errors, "")

    def test_are_named_in_a_book_with_their_lines(self):
        self.assert_run(DONE, "init", self.url(), "--empty")
        book = self.path("book.txt")
        book.write_text("publisher P\ndocument D\nweekday | Sunday | weekday Sunday\npoint | " + "n" * 201 + " | 12-25\n")
        for command in ("check", "set"):
            output, errors = self.assert_run(NOT_DONE, "book", command, self.url(), "EUR", book)
            self.assertIn("Line 4: The name has 201 characters; it may have 200 at most", output + errors)

    def test_are_named_in_a_currency(self):
        self.assert_run(DONE, "init", self.url(), "--empty")
        _, errors = self.assert_run(NOT_DONE, "currency", "add", self.url(), "ZZZ", "998", "Z" * 201)
        self.assertIn("The name has 201 characters; it may have 200 at most", errors)


class LongTextsOfAnOldDatabase(ferrowindctl.InAFolder):

    def upgrade(self, url):
        output, _ = self.assert_run(DONE, "upgrade", url)
        self.assertIn("These texts are longer than what can be stored now. They stay as they are:\n"
                      f"  {RULE}.\n", output)
        output, _ = self.assert_run(DONE, "check", url)
        self.assertIn(f"Warning: {RULE}.\n", output)
        self.assertTrue(output.endswith("The database is in order.\n"))

    def test_are_told_by_the_upgrade_of_a_file_and_kept(self):
        old = self.open_from_outside()
        old.executescript((VERSION_4 / "sqlite.sql").read_text())
        old.execute("UPDATE CldHoliday SET Comment = ? WHERE ID2 = 1", ["c" * 5000])
        old.commit()
        old.close()
        self.upgrade(self.url())
        self.assert_run(DONE, "copy", self.url(), self.url("copy.db"))
        rules = self.call("CldAllInfo")[2]
        self.assertEqual(rules[0]["Comment"], "c" * 5000)

    def test_are_told_by_the_upgrade_on_a_server_and_kept(self):
        database = server.Database(self)
        database.ask("BEGIN; " + (VERSION_4 / "postgres.sql").read_text() + "; COMMIT")
        database.ask("UPDATE ferrowind.CldHoliday SET Comment = repeat('c', 5000) WHERE ID2 = 1")
        self.upgrade(database.uri)
        self.assert_run(DONE, "copy", database.uri, self.url())
        self.assertEqual(database.ask("SELECT length(Comment) FROM ferrowind.CldHoliday WHERE ID2 = 1"), "5000")


if __name__ == "__main__":
    unittest.main()
