"""ferrowindctl history: who changed what and when, on both engines."""

import csv
import datetime
import getpass
import io
import json
import unittest

import ferrowindctl
import server
import version_1
from ferrowindctl import DONE, NOT_DONE, RETURNED_NON_ZERO

FIELDS = ["EntryID", "Moment", "UserName", "ProcedureName", "Ccy", "Year1", "Parameters", "ReturnValue", "RowsChanged",
          "What"]


class HistoryTests:
    """What holds on every engine; `make` gives the URL of an empty database, `user` who changes it."""

    def setUp(self):
        super().setUp()
        self.database = self.make()
        self.assert_run(DONE, "init", self.database, "--empty")

    def change(self, procedure, *arguments, status=DONE):
        self.assert_run(status, "call", self.database, procedure, *arguments)

    def history(self, *options):
        output, _ = self.assert_run(DONE, "history", self.database, "--format", "json", *options)
        document = json.loads(output)
        self.assertEqual(list(document), ["results"])
        [rows] = document["results"]
        self.assertEqual(rows["fields"], FIELDS)
        return [dict(zip(FIELDS, row)) for row in rows["rows"]]

    def make_changes(self):
        self.change("CldIUMain", "ID1=840", "Year1=2026")
        self.change("CldIUCelebrate", "Name1=Saint Nicholas' Day", "TID1=3", "D1=2026-12-06", "MY=12", "MD=6")
        self.change("CldIUMain", "ID1=840", "Year1=2026", "TID1=3", "ID2=2", "Day1=340", "ODate=2026-12-06",
                    "Comment=by; \"order\"")
        self.change("CldIUMain", "ID1=978", "Year1=2026")

    def test_lists_what_was_changed_by_whom(self):
        start = datetime.datetime.now(datetime.timezone.utc)
        self.make_changes()
        self.change("CldIUMain", "ID1=978", "Year1=2026", status=RETURNED_NON_ZERO)
        self.change("CldGetMain", "ID1=978", "Year1=2026")
        entries = self.history()
        self.assertEqual([(e["ProcedureName"], e["Ccy"], e["Year1"], e["ReturnValue"], e["RowsChanged"]) for e in entries],
                         [("CldIUMain", "USD", 2026, 0, 366), ("CldIUCelebrate", None, None, 0, 1),
                          ("CldIUMain", "USD", 2026, 0, 1), ("CldIUMain", "EUR", 2026, 0, 366)])
        self.assertEqual({entry["UserName"] for entry in entries}, {self.user()})
        self.assertEqual(json.loads(entries[2]["Parameters"]),
                         {"ID1": 840, "Year1": 2026, "TID1": 3, "ID2": 2, "Day1": 340, "ODate": "2026-12-06",
                          "Comment": "by; \"order\""})
        moments = [datetime.datetime.fromisoformat(entry["Moment"].replace("Z", "+00:00")) for entry in entries]
        self.assertEqual(moments, sorted(moments))
        slack = datetime.timedelta(milliseconds=1)
        self.assertLessEqual(start - slack, moments[0])
        self.assertLessEqual(moments[-1], datetime.datetime.now(datetime.timezone.utc) + slack)

    def test_finds_one_calendar_and_what_is_new(self):
        self.make_changes()
        entries = self.history("--calendar", "USD/2026")
        self.assertEqual([entry["RowsChanged"] for entry in entries], [366, 1])
        self.assertEqual(len(self.history("--calendar", "usd/2026", "--since", entries[1]["Moment"])), 1)
        self.assertEqual(self.history("--calendar", "840/2026"), entries)
        self.assertEqual(self.history("--calendar", "USD/2027"), [])
        today = datetime.datetime.now(datetime.timezone.utc).date()
        self.assertEqual(self.history("--since", str(today + datetime.timedelta(2))), [])
        self.assertEqual(len(self.history("--since", str(today - datetime.timedelta(2)))), 4)

    def test_shows_people_parameters_as_they_would_write_them(self):
        self.make_changes()
        table, _ = self.assert_run(DONE, "history", self.database)
        lines = table.splitlines()
        self.assertEqual(lines[0].split(), FIELDS)
        self.assertIn(" ID1=840 Year1=2026 ", lines[2])
        self.assertIn("\"Name1=Saint Nicholas' Day\" TID1=3 D1=2026-12-06", lines[3])
        self.assertEqual(len(lines), 6)

    def test_writes_one_table_of_csv(self):
        self.make_changes()
        output, _ = self.assert_run(DONE, "history", self.database, "--format", "csv")
        rows = list(csv.reader(io.StringIO(output, newline="")))
        self.assertEqual(rows[0], FIELDS)
        self.assertEqual([len(row) for row in rows], [10] * 5)
        self.assertEqual(json.loads(rows[2][6])["Name1"], "Saint Nicholas' Day")

    def test_tells_each_change_in_words(self):
        self.make_changes()
        [newest] = self.history()[-1:]
        self.assert_run(DONE, "undo", self.database, str(newest["EntryID"]))
        self.assertEqual([entry["What"] for entry in self.history()],
                         ["Created the calendar USD 2026", "Added the rule Saint Nicholas' Day",
                          "Assigned Saint Nicholas' Day to 6 December 2026", "Created the calendar EUR 2026",
                          "Undid: Created the calendar EUR 2026"])
        [last] = self.history("--since", self.history()[-1]["Moment"])[-1:]
        self.assertEqual(last["What"], "Undid: Created the calendar EUR 2026")

    def test_tells_days_that_were_excepted_together_with_their_reason(self):
        self.change("CldIUMain", "ID1=840", "Year1=2026")
        output, _ = self.assert_run(DONE, "call", self.database, "CldGetFingerprint", "ID1=840", "Year1=2026",
                                    "--format", "json")
        [[fingerprint]] = json.loads(output)["results"][0]["rows"]
        days = [{"TID1": 1, "Dates": ["2026-12-24", "2026-12-31"], "DayComment": "Year-end processing"}]
        self.change("CldApplyPlan", "ID1=840", "Year1=2026", f"Expected={fingerprint}", f"Days={json.dumps(days)}")
        self.assertEqual(self.history()[-1]["What"], "Excepted 2 days of USD 2026: Year-end processing")

    def test_names_what_it_cannot_read(self):
        for options, text in ((("--since", "yesterday"), '"yesterday" is neither a date'),
                              (("--since", ""), "--since is empty"),
                              (("--calendar", "USD"), '"USD" names no calendar'),
                              (("--calendar", "XXQ/2026"), "has no currency XXQ")):
            with self.subTest(options=options):
                _, errors = self.assert_run(NOT_DONE, "history", self.database, *options)
                self.assertIn(text, errors)

    def test_of_an_older_database_asks_for_the_upgrade(self):
        _, errors = self.assert_run(NOT_DONE, "history", self.make_old())
        self.assertIn('"ferrowindctl upgrade"', errors)


class HistoryOfAFile(HistoryTests, ferrowindctl.InAFolder):

    def make(self):
        return self.url()

    def make_old(self):
        return version_1.make_file(self, "old.db")

    def user(self):
        return getpass.getuser()

    def test_survives_whoever_opens_the_file(self):
        self.make_changes()
        database = self.open_from_outside()
        for statement in ("DELETE FROM CldHistory", "UPDATE CldHistory SET UserName = 'nobody'"):
            with self.assertRaisesRegex(Exception, "history"):
                database.execute(statement)
        self.assertEqual(len(self.history()), 4)


class HistoryOnAServer(HistoryTests, ferrowindctl.InAFolder):

    def make(self):
        self.on_server = server.Database(self)
        return self.on_server.uri

    def make_old(self):
        return version_1.make_on_server(self).uri

    def user(self):
        return "postgres"

    def test_is_for_operators_and_not_for_readers(self):
        urls = {}
        for role in ("operator", "reader"):
            name = f"{role}_of_{self.on_server.name}"
            server.ask("postgres", f"CREATE ROLE {name} LOGIN PASSWORD 'sesame' IN ROLE ferrowind_{role}")
            self.addCleanup(lambda name=name: server.ask("postgres", f"DROP ROLE {name}"))
            urls[role] = f"postgresql://{name}:sesame@" + self.database.split("@")[1]
        self.assert_run(DONE, "call", urls["operator"], "CldIUMain", "ID1=756", "Year1=2026")
        self.assertEqual([entry["UserName"] for entry in self.history()], [f"operator_of_{self.on_server.name}"])
        output, _ = self.assert_run(DONE, "history", urls["operator"], "--calendar", "CHF/2026", "--format", "csv")
        self.assertIn("Created the calendar CHF 2026", output)
        _, errors = self.assert_run(NOT_DONE, "history", urls["reader"])
        self.assertIn("does not permit this", errors)
        self.assertNotIn("sesame", errors)


if __name__ == "__main__":
    unittest.main()
