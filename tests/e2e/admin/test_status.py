"""ferrowindctl status: what a database is and holds, in three forms, on both engines."""

import csv
import collections
import io
import json
import unittest

import ferrowindctl
import server
import version_1
from ferrowindctl import DONE, NOT_DONE

FIELDS = ["SchemaVersion", "Engine", "EngineVersion", "Currencies", "Rules", "RemovedRules", "Calendars", "Days",
          "HistoryEntries"]


class Status(ferrowindctl.WithADeliveredDatabase):

    def status(self, url):
        document = json.loads(self.assert_run(DONE, "status", url, "--format", "json")[0])
        self.assertEqual(list(document), ["results"])
        about, years, warnings = document["results"][:3]
        self.assertEqual(len(document["results"]), 3 if url.startswith("sqlite:") else 4)
        self.assertEqual(about["fields"], FIELDS)
        self.assertEqual(years["fields"], ["Year", "Calendars"])
        self.assertEqual(warnings["fields"], ["Year", "Ccy", "Warning"])
        return dict(zip(FIELDS, about["rows"][0])), years["rows"]

    def test_counts_what_a_file_holds(self):
        before, years = self.status(self.url())
        self.assertEqual((before["Engine"], before["Currencies"], before["RemovedRules"], before["Calendars"],
                          before["Days"]), ("SQLite", 184, 0, 52, 18980))
        self.assertEqual(years, [[2026, 26], [2027, 26]])
        self.assert_run(DONE, "call", self.url(), "CldIUMain", "ID1=978", "Year1=2028")
        self.assert_run(DONE, "call", self.url(), "CldIUCelebrate", "ID2=5", "Del=2")
        after, years = self.status(self.url())
        self.assertEqual((after["Calendars"], after["Days"], after["RemovedRules"], after["Rules"]),
                         (53, 19346, 1, before["Rules"]))
        self.assertEqual(after["HistoryEntries"], before["HistoryEntries"] + 2)
        self.assertEqual(years, [[2026, 26], [2027, 26], [2028, 1]])

    def test_counts_the_same_on_a_server(self):
        database = server.Database(self)
        self.assert_run(DONE, "copy", self.url(), database.uri)
        in_file, years = self.status(self.url())
        on_server, years_on_server = self.status(database.uri)
        self.assertEqual(years_on_server, years)
        self.assertEqual(on_server["Engine"], "PostgreSQL")
        self.assertTrue(on_server["EngineVersion"].startswith(server.ask("postgres", "SHOW server_version").split()[0]))
        for field in ("SchemaVersion", "Currencies", "Rules", "RemovedRules", "Calendars", "Days", "HistoryEntries"):
            self.assertEqual(on_server[field], in_file[field], field)

    def test_tells_who_has_the_connections_of_a_server(self):
        database = server.Database(self)
        self.assert_run(DONE, "init", database.uri, "--empty")
        database.login(self, "e2e_anna", "sesame", "ferrowind_operator")
        database.login(self, "e2e_reports", "sesame", "ferrowind_reader")
        server.ask("postgres", "ALTER ROLE e2e_reports CONNECTION LIMIT 5")
        shares = json.loads(self.assert_run(DONE, "status", database.uri, "--format", "json")[0])["results"][3]
        self.assertEqual(shares["fields"], ["Logins", "Connections", "Limit", "WithoutLimit"])
        self.assertEqual(shares["rows"][:2], [["ferrowind_operator", 0, None, "e2e_anna"], ["ferrowind_reader", 0, 5, None]])
        self.assertEqual([row[0] for row in shares["rows"]], ["ferrowind_operator", "ferrowind_reader", "others", "all"])
        self.assertEqual(shares["rows"][3][2], int(server.ask("postgres", "SHOW max_connections"))
                         - int(server.ask("postgres", "SHOW superuser_reserved_connections")))
        self.assertRegex(self.assert_run(DONE, "status", database.uri)[0], r"ferrowind_operator +0 +e2e_anna\n")

    def test_has_the_forms_of_the_other_commands(self):
        table, _ = self.assert_run(DONE, "status", self.url())
        self.assertEqual(table.split()[:3], FIELDS[:3])
        self.assertNotIn("Return value", table)
        output, _ = self.assert_run(DONE, "status", self.url(), "--format", "csv")
        about, years, warnings = [list(csv.reader(io.StringIO(part, newline=""))) for part in output.split("\r\n\r\n")]
        self.assertEqual(about[0], FIELDS)
        self.assertEqual(about[1][6:8], ["52", "18980"])
        self.assertEqual(years, [["Year", "Calendars"], ["2026", "26"], ["2027", "26"]])
        self.assertEqual(warnings[0], ["Year", "Ccy", "Warning"])

    def warnings(self, url):
        """The rows of the form for programs, and the lines of the one for people."""
        document = json.loads(self.assert_run(DONE, "status", url, "--format", "json")[0])
        lines = self.assert_run(DONE, "status", url)[0].splitlines()
        return document["results"][2]["rows"], [line for line in lines if line.startswith("Warning: ")]

    def test_warns_of_years_that_are_not_prepared(self):
        year, *later = ferrowindctl.years_to_prepare()
        self.assert_run(DONE, "init", self.url("past.db"), "--year", "2015")
        for currency in ("EUR", "USD"):
            number = {"EUR": 978, "USD": 840}[currency]
            self.assert_run(DONE, "call", self.url("past.db"), "CldApplyPlan", f"ID1={number}", f"Year1={year}",
                            "Expected=", 'Days=[{"Name1":"Sunday","TID1":2,"Dates":[]}]')
        rows, lines = self.warnings(self.url("past.db"))
        self.assertEqual(collections.Counter(row[0] for row in rows if row[2] == "no calendar"),
                         {year: 24, **{missing: 26 for missing in later}})
        self.assertEqual([row for row in rows if row[2] != "no calendar"],
                         [[year, "EUR", "no weekends"], [year, "USD", "no weekends"]])
        self.assertEqual(len(lines), 2 + len(later))
        self.assertRegex(lines[0], rf"There is no calendar of {year} for AUD, BRL, .*, ZAR\.\Z")
        self.assertEqual(lines[1], f"Warning: No weekend is closed in the calendar of {year} for EUR, USD.")
        for line, missing in zip(lines[2:], later):
            self.assertRegex(line, rf"There is no calendar of {missing} for AUD, BRL, .*, ZAR\.\Z")

    def test_warns_of_nothing_in_an_empty_database_and_in_a_new_one_that_is_prepared(self):
        self.assert_run(DONE, "init", self.url("new.db"))
        # What is not announced yet stands on standard error.
        applied = ferrowindctl.run("apply", self.url("new.db"), "ALL", ferrowindctl.years_to_prepare()[-1], "--yes")
        self.assertEqual(applied.returncode, DONE)
        self.assert_run(DONE, "init", self.url("empty.db"), "--empty")
        for name in ("new.db", "empty.db"):
            self.assertEqual(self.warnings(self.url(name)), ([], []))

    def test_of_an_older_schema_says_why_there_are_no_warnings(self):
        rows, [line] = self.warnings(version_1.make_file(self, "old.db"))
        self.assertEqual([row[:2] for row in rows], [[None, None]])
        self.assertIn("The calendars cannot be looked into: ", line)

    def test_changes_nothing(self):
        before = self.path().read_bytes()
        self.assert_run(DONE, "status", self.url())
        self.assertEqual(self.path().read_bytes(), before)
        self.assertEqual([entry.name for entry in self.folder.iterdir()], ["a.db"])

    def test_of_what_is_no_calendar_database_is_an_error_that_names_it(self):
        self.assertIn("no.db", self.assert_run(NOT_DONE, "status", self.url("no.db"))[1])
        self.assertFalse(self.path("no.db").exists())
        database = server.Database(self)
        self.assertIn(database.name, self.assert_run(NOT_DONE, "status", database.uri)[1])

    def test_without_the_rights_is_an_error_that_says_so(self):
        database = server.Database(self)
        self.assert_run(DONE, "init", database.uri, "--empty")
        database.ask("CREATE ROLE nobody_in_particular LOGIN PASSWORD 'sesame' IN ROLE ferrowind_operator")
        self.addCleanup(lambda: server.ask("postgres", "DROP ROLE nobody_in_particular"))
        host = database.uri.split("@")[1]
        _, errors = self.assert_run(NOT_DONE, "status", f"postgresql://nobody_in_particular:sesame@{host}")
        self.assertIn("is administered by members of ferrowind_owner, and nobody_in_particular is none", errors)
        self.assertNotIn("sesame", errors)


if __name__ == "__main__":
    unittest.main()
