"""ferrowindctl plan and why: what a calendar should be, where it differs, and why."""

import csv
import io
import json
import unittest

import small_book
from ferrowindctl import DONE, NOT_DONE
from small_book import EURO

FIELDS = ["date", "weekday", "now", "should", "action", "why"]


class Plan(small_book.WithSmallBooks):

    def plan(self, status, *options, currency="EUR", year=2028):
        output, errors = self.ctl(status, "plan", self.url(), currency, year, "--format", "json", *options)
        lines = json.loads(output)
        for line in lines:
            self.assertEqual(list(line), FIELDS)
        return lines, errors

    def test_takes_a_calendar_that_does_not_exist_for_an_empty_one(self):
        lines, errors = self.plan(NOT_DONE)
        self.assertEqual(errors, "EUR 2028 does not exist yet, and counts as empty.\n")
        self.assertEqual({line["action"] for line in lines}, {"add"})
        self.assertEqual({line["now"] for line in lines}, {None})
        self.assertEqual(len(lines), 53 + 53 + 2)
        self.assertIn({"date": "2028-04-14", "weekday": "Friday", "now": None, "should": "Good Friday", "action": "add",
                       "why": "Easter Sunday 16 April 2028, two days before"}, lines)
        self.assertEqual(lines, sorted(lines, key=lambda line: line["date"]))

    def test_finds_nothing_in_a_calendar_as_planned(self):
        self.apply("EUR", 2028)
        self.assertEqual(self.plan(DONE), ([], ""))
        self.assertEqual(self.ctl(DONE, "plan", self.url(), "EUR", 2028), ("EUR 2028 is as planned.\n", ""))

    def test_looks_at_several_calendars_as_apply_does(self):
        self.apply("ALL", "2028..2029")
        self.assertEqual(self.ctl(DONE, "plan", self.url(), "all", "2028-2029")[0],
                         "".join(f"{currency} {year} is as planned.\n" for currency in ("EUR", "USD") for year in (2028, 2029)))
        one = json.loads(self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2030, "--format", "json")[0])
        output, errors = self.ctl(NOT_DONE, "plan", self.url(), "ALL", "2029..2030", "--format", "json")
        several = json.loads(output)
        self.assertEqual([{"currency": "EUR"} | day for day in one], [day for day in several if day["currency"] == "EUR"])
        self.assertEqual(list(several[0]), ["currency", *one[0]])
        self.assertEqual({(day["currency"], day["date"][:4]) for day in several}, {("EUR", "2030"), ("USD", "2030")})
        self.assertEqual(errors, "".join(f"{currency} 2030 does not exist yet, and counts as empty.\n" for currency in ("EUR", "USD")))
        table, _ = self.ctl(NOT_DONE, "plan", self.url(), "EUR", "2029..2030")
        self.assertTrue(table.startswith("EUR 2029 is as planned.\nEUR 2030:\ndate "), table)

    def test_shows_every_closed_day_if_asked(self):
        self.apply("EUR", 2028)
        lines, _ = self.plan(DONE, "--all")
        self.assertEqual(len(lines), 53 + 53 + 2)
        self.assertEqual({line["action"] for line in lines}, {"keep"})
        for line in lines:
            self.assertEqual(line["now"], line["should"])

    def test_says_what_is_to_become_of_each_day_that_differs(self):
        self.apply("EUR", 2028)
        self.assign(EURO, "2028-04-13", "Good Friday")
        self.assign(EURO, "2028-04-14", "Christmas Day")
        self.assign(EURO, "2028-04-15", "Christmas Day")
        self.except_day(EURO, "2028-12-25", "Stock-taking")
        lines, errors = self.plan(NOT_DONE)
        self.assertEqual([(line["date"], line["now"], line["should"], line["action"]) for line in lines],
                         [("2028-04-13", "Good Friday", None, "remove"), ("2028-04-14", "Christmas Day", "Good Friday", "replace"),
                          ("2028-04-15", "Christmas Day", "Saturday", "replace"),
                          ("2028-12-25", "Working day by exception", "Christmas Day", "exception")])
        self.assertEqual(errors, "")
        self.assertEqual(lines[-1]["why"], "25 December; now open by exception: Stock-taking")
        for line in lines:
            self.assertTrue(line["why"])

    def test_takes_exceptions_for_planned_if_asked(self):
        self.apply("EUR", 2028)
        self.except_day(EURO, "2028-12-25", "Stock-taking")
        self.plan(NOT_DONE)
        self.assertEqual(self.plan(DONE, "--keep-exceptions"), ([], ""))
        self.assertEqual(self.ctl(DONE, "plan", self.url(), "EUR", 2028, "--keep-exceptions"),
                         ("EUR 2028 is as planned but for 1 working day by exception.\n", ""))
        self.assign(EURO, "2028-04-13", "Good Friday")
        self.assertEqual([line["date"] for line in self.plan(NOT_DONE, "--keep-exceptions")[0]], ["2028-04-13"])

    def test_counts_the_weekends_of_a_calendar_that_does_not_exist_for_people(self):
        output, _ = self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2028)
        self.assertEqual(len(output.splitlines()), 2 + 2 + 1)
        self.assertTrue(output.endswith("\nand 106 days of weekends\n"))
        self.assertEqual(len(self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2028, "--all")[0].splitlines()), 2 + 108)
        self.call("CldIUMain", f"ID1={EURO}", "Year1=2028")
        self.assertEqual(len(self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2028)[0].splitlines()), 2 + 108)

    def test_prints_the_same_for_people_and_for_spreadsheets(self):
        self.apply("EUR", 2028)
        self.assign(EURO, "2028-04-14", "Christmas Day")
        table, _ = self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2028)
        lines = table.splitlines()
        self.assertEqual(lines[0].split(), FIELDS)
        self.assertEqual(lines[2], "2028-04-14  Friday   Christmas Day  Good Friday  replace  "
                                   "Easter Sunday 16 April 2028, two days before")
        self.assign(EURO, "2028-04-13", "Good Friday")
        self.assertIn("2028-04-13  Thursday  Good Friday    working day  remove   ", self.ctl(NOT_DONE, "plan", self.url(),
                                                                                             "EUR", 2028)[0])
        output, _ = self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2028, "--format", "csv")
        rows = list(csv.reader(io.StringIO(output, newline="")))
        self.assertEqual(rows[1][:5], ["2028-04-13", "Thursday", "Good Friday", "", "remove"])
        self.assertEqual([rows[0], rows[2]],
                         [FIELDS, ["2028-04-14", "Friday", "Christmas Day", "Good Friday", "replace",
                                   "Easter Sunday 16 April 2028, two days before"]])

    def test_tells_what_the_database_would_refuse(self):
        self.apply("EUR", 2028)
        self.call("CldIUCelebrate", f"ID2={self.rule('Good Friday')}", "Del=2")
        self.assertEqual(self.plan(DONE)[1], "")
        _, errors = self.plan(NOT_DONE, year=2029)
        self.assertEqual(errors, "EUR 2029 does not exist yet, and counts as empty.\n"
                                 "EUR 2029 cannot be applied: The rule \"Good Friday\" is removed; restore it before.\n")

    def test_tells_which_dates_the_plan_lacks(self):
        feast = {"Name1": "Feast", "TID1": 4, "Expression": "table chinese-new-year"}
        self.store_book(EURO, [*small_book.WEEKEND, feast])
        lines, errors = self.plan(NOT_DONE, year=2199)
        self.assertEqual({line["should"] for line in lines}, {"Saturday", "Sunday"})
        self.assertIn("EUR 2199 cannot be planned in full. ", errors)
        self.assertIn("Feast", errors)

    def test_tells_which_dates_the_book_says_are_unknown(self):
        fair = {"Name1": "Fair", "TID1": 4, "Expression": "unknown from 2028"}
        announced = {"Name1": "Fair", "TID1": 4, "Expression": "2029-03-01"}
        self.store_book(EURO, [*small_book.WEEKEND, fair, announced])
        self.assertIn("EUR 2028 cannot be planned in full. The date of Fair in 2028 is not known: the book has no day of that "
                      "year yet.\n", self.plan(NOT_DONE, year=2028)[1])
        self.assertNotIn("in full", self.plan(NOT_DONE, year=2029)[1])

    def test_refuses_what_cannot_be_planned(self):
        for arguments, reason in [(["SEK", 2028], "SEK has no book"), (["EUX", 2028], "no currency EUX"),
                                  (["EUR", "28"], "\"28\" is neither a year"), (["EUR", "1899"], "ferrowindctl: Years can be planned from 1900 to 2199, not 1899\n"),
                                  (["EUR", "2200"], "ferrowindctl: Years can be planned from 1900 to 2199, not 2200\n")]:
            with self.subTest(arguments):
                output, errors = self.ctl(NOT_DONE, "plan", self.url(), *arguments)
                self.assertEqual(output, "")
                self.assertIn(reason, errors)
        self.assertIn("EUR 2028", self.ctl(NOT_DONE, "plan", self.url(), "eur", 2028)[1])

    def test_refuses_years_before_the_book_holds(self):
        self.store_book(EURO, [*small_book.WEEKEND, small_book.CHRISTMAS], since=2015)
        sentence = "ferrowindctl: The book of EUR holds from 2015 on, so it does not tell what 2014 should be\n"
        for command in (("plan", "EUR", 2014), ("plan", "EUR", 2014, "--all", "--format", "json"),
                        ("apply", "EUR", "2014..2016", "--yes"), ("why", "EUR", "2014-12-25")):
            with self.subTest(command):
                self.assertEqual(self.ctl(NOT_DONE, command[0], self.url(), *command[1:]), ("", sentence))
        self.assertEqual(self.call("CldAllInfo")[0], [])
        self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2015)
        self.ctl(DONE, "why", self.url(), "EUR", "2015-01-01")

    def test_refuses_a_book_with_faults(self):
        self.store_book(EURO, [{"Name1": "Feast", "TID1": 4, "Expression": "12-32"}])
        output, errors = self.ctl(NOT_DONE, "plan", self.url(), "EUR", 2028)
        self.assertEqual(output, "")
        self.assertIn("The book of EUR cannot be used: The rule 1, \"Feast\"", errors)
        self.assertIn("12-32", errors)


class Why(small_book.WithSmallBooks):

    def test_says_what_a_day_is_what_it_should_be_and_why(self):
        self.apply("EUR", 2028)
        output, errors = self.ctl(DONE, "why", self.url(), "eur", "2028-04-14")
        self.assertEqual(errors, "")
        self.assertEqual(output, "EUR, Friday 14 April 2028\n"
                                 "now     Good Friday\n"
                                 "should  Good Friday\n"
                                 "why     Easter Sunday 16 April 2028, two days before\n"
                                 "book    Small Bank: Closing days\n")

    def test_tells_a_day_that_differs_and_the_reason_of_an_exception(self):
        self.apply("EUR", 2028)
        self.except_day(EURO, "2028-12-25", "Stock-taking")
        output, _ = self.ctl(DONE, "why", self.url(), "EUR", "2028-12-25")
        self.assertIn("\nnow     Working day by exception (Stock-taking)\nshould  Christmas Day\n", output)

    def test_tells_an_ordinary_working_day(self):
        self.apply("EUR", 2028)
        output, _ = self.ctl(DONE, "why", self.url(), "EUR", "2028-04-13")
        self.assertIn("\nnow     ordinary working day\nshould  ordinary working day\nwhy     ", output)

    def test_does_not_say_that_an_exception_on_an_ordinary_day_should_be_one(self):
        self.apply("EUR", 2028)
        self.except_day(EURO, "2028-04-13", "Stock-taking")
        output, _ = self.ctl(DONE, "why", self.url(), "EUR", "2028-04-13")
        self.assertIn("\nnow     Working day by exception (Stock-taking)\nshould  ordinary working day\n"
                      "why     An ordinary working day\n", output)
        self.assertIn("is as planned", self.ctl(DONE, "plan", self.url(), "EUR", 2028)[0])

    def test_never_takes_a_day_of_a_year_that_is_not_prepared_for_open(self):
        output, _ = self.ctl(DONE, "why", self.url(), "EUR", "2028-04-13")
        self.assertIn("\nnow     not prepared: there is no calendar EUR 2028\n", output)

    def test_tells_which_dates_of_the_year_the_plan_lacks(self):
        feast = {"Name1": "Feast", "TID1": 4, "Expression": "table chinese-new-year"}
        fair = {"Name1": "Fair", "TID1": 4, "Expression": "table matariki"}
        self.store_book(EURO, [*small_book.WEEKEND, feast, fair])
        output, errors = self.ctl(DONE, "why", self.url(), "EUR", "2199-02-05")
        self.assertIn("\nshould  ordinary working day, as far as the plan knows\n", output)
        self.assertRegex(errors, r"\AEUR 2199 cannot be planned in full\. The date of Feast in 2199 is not known: .*\.\n"
                                 r"EUR 2199 cannot be planned in full\. The date of Fair in 2199 is not known: .*\.\n\Z")

    def test_counts_a_date_that_the_book_adds_to_a_table_as_known(self):
        feast = {"Name1": "Feast", "TID1": 4, "Expression": "table chinese-new-year"}
        self.store_book(EURO, [*small_book.WEEKEND, feast, {**feast, "Expression": "2199-02-05"}])
        output, errors = self.ctl(DONE, "why", self.url(), "EUR", "2199-02-05")
        self.assertIn("\nshould  Feast\n", output)
        self.assertEqual(errors, "")

    def test_refuses_what_is_no_date(self):
        self.assertIn("\"2028-02-30\" is no date", self.ctl(NOT_DONE, "why", self.url(), "EUR", "2028-02-30")[1])


if __name__ == "__main__":
    unittest.main()
