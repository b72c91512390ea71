"""ferrowindctl status: what a database is and holds, in three forms, on both engines."""

import csv
import io
import json
import unittest

import ferrowindctl
import server
from ferrowindctl import DONE, NOT_DONE

FIELDS = ["SchemaVersion", "Engine", "EngineVersion", "Currencies", "Rules", "RemovedRules", "Calendars", "Days",
          "HistoryEntries"]


class Status(ferrowindctl.WithADeliveredDatabase):

    def status(self, url):
        document = json.loads(self.assert_run(DONE, "status", url, "--format", "json")[0])
        self.assertEqual(list(document), ["results"])
        about, years = document["results"]
        self.assertEqual(about["fields"], FIELDS)
        self.assertEqual(years["fields"], ["Year", "Calendars"])
        return dict(zip(FIELDS, about["rows"][0])), years["rows"]

    def test_counts_what_a_file_holds(self):
        before, years = self.status(self.url())
        self.assertEqual((before["Engine"], before["Currencies"], before["RemovedRules"], before["Calendars"],
                          before["Days"]), ("SQLite", 181, 0, 10, 3650))
        self.assertEqual(years, [[2026, 5], [2027, 5]])
        self.assert_run(DONE, "call", self.url(), "CldIUMain", "ID1=978", "Year1=2028")
        self.assert_run(DONE, "call", self.url(), "CldIUCelebrate", "ID2=5", "Del=2")
        after, years = self.status(self.url())
        self.assertEqual((after["Calendars"], after["Days"], after["RemovedRules"], after["Rules"]),
                         (11, 4016, 1, before["Rules"]))
        self.assertEqual(after["HistoryEntries"], before["HistoryEntries"] + 2)
        self.assertEqual(years, [[2026, 5], [2027, 5], [2028, 1]])

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

    def test_has_the_forms_of_the_other_commands(self):
        table, _ = self.assert_run(DONE, "status", self.url())
        self.assertEqual(table.split()[:3], FIELDS[:3])
        self.assertNotIn("Return value", table)
        output, _ = self.assert_run(DONE, "status", self.url(), "--format", "csv")
        about, years = [list(csv.reader(io.StringIO(part, newline=""))) for part in output.split("\r\n\r\n")]
        self.assertEqual(about[0], FIELDS)
        self.assertEqual(about[1][6:8], ["10", "3650"])
        self.assertEqual(years, [["Year", "Calendars"], ["2026", "5"], ["2027", "5"]])

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
        self.assertIn("does not permit", errors)
        self.assertNotIn("sesame", errors)


if __name__ == "__main__":
    unittest.main()
