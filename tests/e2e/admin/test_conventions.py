"""ferrowindctl conventions: how days to spot are counted is amended by administrators, on both engines."""

import json
import unittest

import ferrowindctl
import server
from ferrowindctl import DONE, NOT_DONE


class ConventionTests:
    """What holds on every engine; `make` gives the URL of an empty database."""

    def setUp(self):
        super().setUp()
        self.database = self.make()
        self.assert_run(DONE, "init", self.database, "--empty")

    def conventions(self, database=None):
        output, _ = self.assert_run(DONE, "conventions", "list", database or self.database, "--format", "json")
        [rows] = json.loads(output)["results"]
        self.assertEqual(rows["fields"], ["Convention", "From", "InPlaceOf"])
        return {row[0]: row[1:] for row in rows["rows"]}

    def change(self, *arguments):
        return self.assert_run(DONE, "conventions", arguments[0], self.database, *arguments[1:])[0]

    def refuse(self, *arguments):
        before = self.conventions()
        output, errors = self.assert_run(NOT_DONE, "conventions", arguments[0], self.database, *arguments[1:])
        self.assertEqual(output, "")
        self.assertEqual(self.conventions(), before)
        return errors

    def test_lists_what_comes_with_the_program(self):
        conventions = self.conventions()
        self.assertEqual(conventions["spot CAD/USD 1"], ["program", None])
        self.assertEqual({source for source, _ in conventions.values()}, {"program"})

    def test_lines_of_the_database_stand_in_place_of_the_programs(self):
        self.assertEqual(self.change("set", "spot usd/cad 2", "dollar-holiday-stops MXN no", "spot EURUSD 1"),
                         "In force now: spot CAD/USD 2\nIn force now: spot EUR/USD 1\n"
                         "In force now: dollar-holiday-stops MXN no\n")
        conventions = self.conventions()
        self.assertEqual(conventions["spot CAD/USD 2"], ["database", "spot CAD/USD 1"])
        self.assertEqual(conventions["dollar-holiday-stops MXN no"], ["database", "dollar-holiday-stops MXN"])
        self.assertEqual(conventions["spot EUR/USD 1"], ["database", None])
        self.assertNotIn("spot CAD/USD 1", conventions)
        self.assert_run(DONE, "check", self.database)

    def test_takes_lines_back(self):
        before = self.conventions()
        self.change("set", "spot USD/CAD 2", "dollar-holiday-stops EUR")
        self.change("remove", "CAD/USD", "eur")
        self.assertEqual(self.conventions(), before)
        self.assertIn("The database says nothing of CAD/USD that could be removed", self.refuse("remove", "USDCAD"))

    def test_takes_numbers_of_currencies_for_their_codes(self):
        before = self.conventions()
        self.assertEqual(self.change("set", "spot 840/124 2", "dollar-holiday-stops 978"),
                         "In force now: spot CAD/USD 2\nIn force now: dollar-holiday-stops EUR\n")
        self.change("remove", "124/840", "978")
        self.assertEqual(self.conventions(), before)
        self.assertIn("The database has no currency 111", self.refuse("set", "spot 840/111 1"))

    def test_sets_nothing_when_a_line_is_wrong(self):
        self.assertIn('Line 2: "3" is no number of days to spot', self.refuse("set", "spot USD/CAD 2", "spot USD/TRY 3"))
        self.assertIn("The database has no currency QQQ", self.refuse("set", "spot EUR/USD 1", "spot USD/QQQ 1"))
        self.assertIn("Line 1: expected is", self.refuse("set", "spot"))
        self.assertIn("No line says anything", self.refuse("set", "# nothing"))
        self.assertIn("is no currency pair", self.refuse("remove", "EURO"))

    def test_removes_nothing_when_one_of_them_is_not_there(self):
        self.change("set", "spot EUR/USD 1", "dollar-holiday-stops MXN no")
        self.assertIn("The database says nothing of GBP/USD that could be removed", self.refuse("remove", "EURUSD", "GBPUSD"))
        self.assert_run(DONE, "check", self.database)
        self.change("remove", "EURUSD", "MXN")
        self.assertEqual({source for source, _ in self.conventions().values()}, {"program"})
        self.assert_run(DONE, "check", self.database)

    def test_a_change_is_undone_and_copied(self):
        self.change("set", "spot EUR/USD 1")
        copy = self.url("copy.db")
        self.assert_run(DONE, "copy", self.database, copy)
        self.assertEqual(self.conventions(copy), self.conventions())
        self.assert_run(DONE, "check", copy)
        output, _ = self.assert_run(DONE, "history", self.database, "--format", "json")
        [entry] = json.loads(output)["results"][0]["rows"]
        self.assert_run(DONE, "undo", self.database, entry[0])
        self.assertNotIn("spot EUR/USD 1", self.conventions())


class ConventionsOfAFile(ConventionTests, ferrowindctl.InAFolder):
    def make(self):
        return self.url()


class ConventionsOnAServer(ConventionTests, ferrowindctl.InAFolder):
    def make(self):
        self.server_database = server.Database(self)
        return self.server_database.uri


if __name__ == "__main__":
    unittest.main()
