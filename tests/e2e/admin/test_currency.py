"""ferrowindctl currency: the list is kept up to date by administrators, on both engines."""

import json
import unittest

import ferrowindctl
import server
from ferrowindctl import DONE, NOT_DONE, RETURNED_NON_ZERO

PAST, TO_COME = "2019-12-31", "2198-12-31"
FIELDS = ["CcyID", "Ccy", "Kind", "Name", "LastDay"]


class CurrencyTests:
    """What holds on every engine; `make` gives the URL of an empty database."""

    def setUp(self):
        super().setUp()
        self.database = self.make()
        self.assert_run(DONE, "init", self.database, "--empty")

    def currencies(self):
        output, _ = self.assert_run(DONE, "currency", "list", self.database, "--format", "json")
        [rows] = json.loads(output)["results"]
        self.assertEqual(rows["fields"], FIELDS)
        return {row[1]: row for row in rows["rows"]}

    def change(self, *arguments):
        return self.assert_run(DONE, "currency", arguments[0], self.database, *arguments[1:])[0]

    def refuse(self, *arguments):
        before = self.currencies()
        output, errors = self.assert_run(NOT_DONE, "currency", arguments[0], self.database, *arguments[1:])
        self.assertEqual(output, "")
        self.assertEqual(self.currencies(), before)
        return errors

    def create_calendar(self, number, year, status=DONE):
        return self.assert_run(status, "call", self.database, "CldIUMain", f"ID1={number}", f"Year1={year}")[0]

    def test_add_names_a_number_that_is_none_and_the_help_that_tells_more(self):
        self.assertEqual(self.refuse("add", "XYZ", "abc", "Name"),
                         "ferrowindctl: \"abc\" is no whole number, as NUMBER is\n"
                         "Run \"ferrowindctl currency add --help\" for how to use it.\n")

    def undo_last(self):
        output, _ = self.assert_run(DONE, "history", self.database, "--format", "json")
        self.assert_run(DONE, "undo", self.database, json.loads(output)["results"][0]["rows"][-1][0])

    def test_lists_what_is_money_what_was_and_what_never_was(self):
        currencies = self.currencies()
        self.assertEqual(list(currencies), sorted(currencies))
        self.assertEqual(currencies["XCG"], [532, "XCG", "money", "Caribbean Guilder", None])
        self.assertEqual(currencies["HRK"], [191, "HRK", "past", "Kuna", "2022-12-31"])
        self.assertEqual(currencies["XAU"], [959, "XAU", "other", "Gold", None])
        table, _ = self.assert_run(DONE, "currency", "list", self.database)
        self.assertEqual(table.split()[:5], FIELDS)
        csv, _ = self.assert_run(DONE, "currency", "list", self.database, "--format", "csv")
        self.assertIn("\r\n975,BGN,past,Bulgarian Lev,2025-12-31\r\n", csv)

    def test_adds_money_that_can_have_calendars(self):
        output = self.change("add", "qqa", "991", "Qumran Crown")
        self.assertEqual(output, "QQA (991) is in the list now: Qumran Crown.\n")
        self.assertEqual(self.currencies()["QQA"], [991, "QQA", "money", "Qumran Crown", None])
        self.create_calendar(991, 2027)

    def test_adds_what_is_no_money_and_has_no_calendars(self):
        self.change("add", "QQM", "992", "Mithril", "--no-money")
        self.assertEqual(self.currencies()["QQM"], [992, "QQM", "other", "Mithril", None])
        self.assertIn("3", self.create_calendar(992, 2027, status=RETURNED_NON_ZERO))

    def test_adds_nothing_that_is_there_or_malformed(self):
        self.assertIn("The number 978 belongs to EUR", self.refuse("add", "QQA", "978", "Qumran Crown"))
        self.assertIn("The code EUR belongs to another currency", self.refuse("add", "EUR", "991", "Qumran Crown"))
        for code in ("EU", "EURO", "E1R", ""):
            self.assertIn(f'"{code}" is no code', self.refuse("add", code, "991", "Qumran Crown"))
        for number in ("0", "1000", "-1"):
            self.assertIn("from 1 to 999", self.refuse("add", "QQA", number, "Qumran Crown"))
        self.assertIn("NUMBER", self.refuse("add", "QQA", "many", "Qumran Crown"))
        self.assertIn("The name is blank", self.refuse("add", "QQA", "991", "  "))

    def test_renames_and_keeps_number_and_calendars(self):
        self.create_calendar(978, 2027)
        self.assertEqual(self.change("rename", "eur", "New Euro"), "EUR (978), Euro, is EUR now, New Euro.\n")
        self.assertEqual(self.change("rename", "EUR", "--code", "nue"), "EUR (978), New Euro, is NUE now, New Euro.\n")
        self.assertEqual(self.currencies()["NUE"], [978, "NUE", "money", "New Euro", None])
        self.assertNotIn("EUR", self.currencies())
        self.assert_run(DONE, "history", self.database, "--calendar", "NUE/2027")

    def test_renames_nothing_that_is_unknown_or_would_be_there_twice(self):
        self.assertIn("no currency QQQ", self.refuse("rename", "QQQ", "Name"))
        self.assertIn("The code USD belongs to another currency", self.refuse("rename", "EUR", "--code", "USD"))
        self.assertIn("Neither a name nor a code", self.refuse("rename", "EUR"))
        self.assertIn("NAME is empty", self.refuse("rename", "EUR", ""))

    def test_retires_a_currency_of_the_past_without_calendars_wholly(self):
        self.assertEqual(self.change("retire", "dkk", PAST), f"DKK (208) was money until {PAST}.\n")
        self.assertEqual(self.currencies()["DKK"], [208, "DKK", "past", "Danish Krone", PAST])
        self.create_calendar(208, 2019, status=RETURNED_NON_ZERO)

    def test_keeps_a_currency_money_until_its_last_day(self):
        output = self.change("retire", "208", TO_COME)
        self.assertIn(f"DKK (208) is money until {TO_COME}.\n", output)
        self.assertIn('"retire" it again after that day', output)
        self.assertEqual(self.currencies()["DKK"], [208, "DKK", "money", "Danish Krone", TO_COME])
        self.create_calendar(208, 2027)
        self.assertIn("3", self.create_calendar(208, 2199, status=RETURNED_NON_ZERO))
        self.assert_run(DONE, "book", "set", self.database, "DKK", "--delivered")

    def test_retires_a_currency_with_calendars_that_keeps_them(self):
        self.create_calendar(208, 2018)
        output = self.change("retire", "DKK", PAST)
        self.assertIn("It stays in the lists of the windows", output)
        self.assertEqual(self.currencies()["DKK"], [208, "DKK", "past", "Danish Krone", PAST])
        self.create_calendar(208, 2019)
        self.assertIn("3", self.create_calendar(208, 2020, status=RETURNED_NON_ZERO))

    def test_moves_the_last_day_of_a_retired_currency(self):
        self.change("retire", "DKK", PAST)
        self.change("retire", "DKK", TO_COME)
        self.assertEqual(self.currencies()["DKK"], [208, "DKK", "money", "Danish Krone", TO_COME])

    def test_retires_nothing_that_never_was_money(self):
        for code in ("XAU", "XDR", "XXX"):
            self.assertIn("never was money", self.refuse("retire", code, PAST))
            self.assertIn("never was money", self.refuse("restore", code))

    def test_restores_what_was_retired(self):
        before = self.currencies()
        for day in (PAST, TO_COME):
            self.change("retire", "DKK", day)
            self.assertEqual(self.change("restore", "dkk"), "DKK (208) is money again, without a last day.\n")
            self.assertEqual(self.currencies(), before)
        self.create_calendar(208, 2199)
        # Money of the past that came with the database.
        self.change("restore", "HRK")
        self.assertEqual(self.currencies()["HRK"], [191, "HRK", "money", "Kuna", None])
        self.create_calendar(191, 2027)
        self.assertIn("DKK (208) is money without a last day", self.refuse("restore", "DKK"))

    def test_takes_the_number_for_the_currency_whose_code_means_all(self):
        self.assertIn("write 8 for the currency of that code, Lek", self.refuse("retire", "ALL", PAST))
        self.assertIn("write 8 ", self.refuse("rename", "all", "New Lek"))
        self.assertEqual(self.change("rename", "008", "New Lek"), "ALL (8), Lek, is ALL now, New Lek.\n")

    def test_retires_nothing_that_has_a_later_calendar(self):
        self.create_calendar(208, 2030)
        self.assertIn("DKK (208) has a calendar of a year after 2029", self.refuse("retire", "DKK", "2029-12-31"))
        self.assertIn('"2029-02-30" is no date', self.refuse("retire", "DKK", "2029-02-30"))
        for day in ("1899-12-31", "2200-01-01", "2999-12-31"):
            self.assertIn(f"{day} is no last day of a currency: it is in a year from 1900 to 2199",
                          self.refuse("retire", "DKK", day))

    def test_a_change_is_in_the_history_and_can_be_undone(self):
        before = self.currencies()
        for change in (("add", "QQA", "991", "Qumran Crown"), ("rename", "EUR", "New Euro"), ("retire", "DKK", PAST)):
            self.change(*change)
            self.assertNotEqual(self.currencies(), before)
            self.undo_last()
            self.assertEqual(self.currencies(), before)


class CurrenciesOfAFile(CurrencyTests, ferrowindctl.InAFolder):

    def make(self):
        return self.url()


class CurrenciesOnAServer(CurrencyTests, ferrowindctl.InAFolder):

    def make(self):
        self.on_server = server.Database(self)
        return self.on_server.uri

    def test_are_read_by_operators_and_changed_by_administrators_alone(self):
        operator = self.on_server.login(self, f"operator_of_{self.on_server.name}", "sesame", role="ferrowind_operator")
        self.assert_run(DONE, "currency", "list", operator)
        before = self.currencies()
        for change in (("add", operator, "QQA", "991", "Qumran Crown"), ("rename", operator, "EUR", "New Euro"),
                       ("retire", operator, "DKK", "2029-12-31")):
            _, errors = self.assert_run(NOT_DONE, "currency", *change)
            self.assertIn("is administered by members of ferrowind_owner, and operator_of_", errors)
            self.assertNotIn("sesame", errors)
        self.assertEqual(self.currencies(), before)


if __name__ == "__main__":
    unittest.main()
