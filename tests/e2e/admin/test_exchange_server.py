"""ferrowindctl export, import and reconcile on a server: an operator makes there what the same list makes in a file."""

import unittest

import ferrowindctl
import server
import small_book
from ferrowindctl import DONE, NOT_DONE

LIST = """2028-04-14 Good Friday
2028-05-01 Labour Day
2028-12-24 Christmas Eve (half day)
"""


class OnAServer(small_book.WithSmallBooks):

    def setUp(self):
        self.database = server.Database(self)
        super().setUp()
        self.apply("EUR", 2028)
        self.operator = self.database.login(self, "olga", "Ans%wer;42", role="ferrowind_operator")
        self.list = self.path("list.txt")
        self.list.write_text(LIST)

    def url(self, name="a.db"):
        """The first database is the server's; others are files."""
        return self.database.uri if name == "a.db" else super().url(name)

    def entries(self):
        return self.database.rows("SELECT EntryID, UserName, ProcedureName FROM CldHistory ORDER BY EntryID")

    def export(self, url):
        return self.ctl(DONE, "export", url, "EUR", 2028, "--format", "csv", "--all")[0]

    def test_a_list_is_made_a_calendar_in_one_call_and_undone(self):
        before, entries = self.export(self.operator), self.entries()
        self.ctl(DONE, "copy", self.url(), self.url("file.db"))
        told = self.ctl(DONE, "import", self.operator, "EUR", self.list, "--yes")
        told_of_file = self.ctl(DONE, "import", self.url("file.db"), "EUR", self.list, "--yes")
        self.assertEqual(told[0].rsplit(";", 1)[0], told_of_file[0].rsplit(";", 1)[0])
        self.assertEqual(told[1], told_of_file[1])
        self.assertEqual(self.export(self.operator), self.export(self.url("file.db")))
        self.assertEqual(self.holidays(small_book.EURO, 2028), {"2028-04-14": "Good Friday", "2028-05-01": "Labour Day"})
        [(entry, who, procedure)] = self.entries()[len(entries):]
        self.assertEqual((who, procedure), ("olga", "CldApplyPlan"))
        self.ctl(DONE, "reconcile", self.operator, "EUR", self.list)
        self.ctl(DONE, "undo", self.operator, entry)
        self.assertEqual(self.export(self.operator), before)
        self.ctl(NOT_DONE, "reconcile", self.operator, "EUR", self.list)


if __name__ == "__main__":
    unittest.main()
