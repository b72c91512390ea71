"""ferrowindctl review: what an operator should look at, and whether a monitor should call one."""

import csv
import datetime
import io
import json
import unittest

import ferrowindctl
import small_book
from ferrowindctl import DONE, NOT_DONE
from small_book import EURO, KRONA

FIELDS = ["level", "currency", "year", "date", "finding"]
THIS_YEAR = datetime.datetime.now(datetime.timezone.utc).year


class Review(small_book.WithSmallBooks):

    def review(self, status, *options):
        output, errors = self.ctl(status, "review", self.url(), "--format", "json", *options)
        self.assertEqual(errors, "")
        findings = json.loads(output)
        for finding in findings:
            self.assertEqual(list(finding), FIELDS)
        return findings

    def prepare(self, years=2):
        self.apply("ALL", f"{THIS_YEAR}..{THIS_YEAR + years}")

    def test_says_that_all_is_right(self):
        self.prepare()
        self.assertEqual(self.review(DONE), [])
        self.assertEqual(self.ctl(DONE, "review", self.url()), ("All is right: 6 calendars of 2 currencies.\n", ""))

    def test_misses_the_calendars_within_the_horizon(self):
        self.prepare(0)
        self.assertEqual(self.review(DONE, "--horizon", "0"), [])
        self.assertEqual([(f["level"], f["currency"], f["year"], f["date"]) for f in self.review(NOT_DONE, "--horizon", "2")],
                         [("warning", currency, THIS_YEAR + year, None) for currency in ("EUR", "USD") for year in (1, 2)])
        self.assertEqual(len(self.review(NOT_DONE)) // 2, 1 if datetime.datetime.now(datetime.timezone.utc).month < 9 else 2)

    def test_calls_a_missing_calendar_of_the_running_year_an_error(self):
        self.assertEqual([(f["level"], f["finding"]) for f in self.review(NOT_DONE, "--horizon", "0")],
                         [("error", "There is no calendar.")] +
                         [("error", f"{currency} has no calendar for {THIS_YEAR}, the running year.")
                          for currency in ("EUR", "USD")])

    def test_is_not_content_with_a_database_without_any_calendar(self):
        self.assert_run(DONE, "init", self.url("empty.db"), "--empty")
        output, _ = self.ctl(NOT_DONE, "review", self.url("empty.db"), "--format", "json")
        self.assertEqual(json.loads(output), [{"level": "error", "currency": None, "year": None, "date": None,
                                               "finding": "There is no calendar."}])
        output, _ = self.ctl(NOT_DONE, "review", self.url("empty.db"))
        self.assertTrue(output.endswith("\n0 calendars of 0 currencies: 1 error, 0 warnings, 0 notes.\n"))

    def test_lists_what_is_wrong_worst_first(self):
        self.prepare()
        year = THIS_YEAR + 1
        self.assign(EURO, f"{year}-12-22", "Christmas Day")
        self.except_day(EURO, f"{year}-12-25")
        self.call("CldIUMain", f"ID1={KRONA}", f"Year1={THIS_YEAR}")
        findings = self.review(NOT_DONE, "--horizon", "1")
        self.assertEqual([(f["level"], f["currency"], f["year"], f["date"]) for f in findings],
                         [("error", "SEK", THIS_YEAR, None), ("warning", "EUR", year, f"{year}-12-22"),
                          ("warning", "EUR", year, f"{year}-12-25"), ("warning", "SEK", year, None), ("note", "SEK", None, None)])
        table, _ = self.ctl(NOT_DONE, "review", self.url(), "--horizon", "1")
        lines = table.splitlines()
        self.assertEqual(lines[0].split(), ["level", "finding"])
        self.assertEqual(lines[2], f"error    SEK {THIS_YEAR} has no weekends: no weekday holiday closes any of its days.")
        self.assertIn(f"22 December {year} is Christmas Day and should be ", lines[3])
        self.assertEqual(lines[-1], "7 calendars of 3 currencies: 1 error, 3 warnings, 1 note.")
        output, _ = self.ctl(NOT_DONE, "review", self.url(), "--horizon", "1", "--format", "csv")
        rows = list(csv.reader(io.StringIO(output, newline="")))
        self.assertEqual(rows[0], FIELDS)
        self.assertEqual([row[:4] for row in rows[1:3]],
                         [["error", "SEK", str(THIS_YEAR), ""], ["warning", "EUR", str(year), f"{year}-12-22"]])

    def test_lets_a_monitor_pass_over_notes(self):
        self.prepare()
        self.except_day(EURO, f"{THIS_YEAR + 1}-12-25", "Stock-taking")
        [finding] = self.review(DONE)
        self.assertEqual((finding["level"], finding["date"]), ("note", f"{THIS_YEAR + 1}-12-25"))
        self.assertIn("\"Stock-taking\"", finding["finding"])
        self.assertTrue(self.ctl(DONE, "review", self.url())[0].endswith(
            "\nAll is right: 6 calendars of 2 currencies, with 1 note.\n"))

    def test_warns_of_a_book_that_cannot_be_used(self):
        self.prepare()
        self.store_book(EURO, [{"Name1": "Feast", "TID1": 4, "Expression": "12-32"}])
        [finding] = self.review(NOT_DONE)
        self.assertEqual((finding["level"], finding["currency"], finding["year"]), ("warning", "EUR", None))
        self.assertIn("The rule 1, \"Feast\"", finding["finding"])

    def test_changes_nothing(self):
        self.prepare()
        before = self.path().read_bytes()
        self.review(DONE)
        self.assertEqual(self.path().read_bytes(), before)

    def test_refuses_a_horizon_that_is_none(self):
        for horizon in ["-1", "101", "soon"]:
            self.assertIn("--horizon", self.ctl(NOT_DONE, "review", self.url(), "--horizon", horizon)[1])

    def test_tells_of_a_database_that_cannot_be_read(self):
        output, errors = self.ctl(NOT_DONE, "review", self.url("none.db"))
        self.assertEqual(output, "")
        self.assertIn("none.db", errors)


class DeliveredDatabase(ferrowindctl.WithADeliveredDatabase):

    def findings(self):
        """Those about the delivered years and 2028 that somebody has to do something about."""
        result = ferrowindctl.run("review", self.url(), "--format", "json")
        return [finding for finding in json.loads(result.stdout)
                if finding["level"] != "note" and finding["year"] in (2026, 2027, 2028)
                # What is published late is missing in every plan until then.
                and "cannot be judged in full" not in finding["finding"]]

    def test_has_26_right_calendars_of_2028_after_one_command(self):
        self.assertEqual([f["finding"] for f in self.findings() if "has no calendar for 2028" not in f["finding"]], [])
        result = ferrowindctl.run("apply", self.url(), "ALL", "2028", "--yes")
        self.assertEqual(result.returncode, DONE, result.stderr)
        [calendars, *_] = self.call("CldAllInfo")
        self.assertEqual(len([calendar for calendar in calendars if calendar["Year1"] == 2028]), 26)
        self.assertEqual(self.findings(), [])
        review = ferrowindctl.run("review", self.url())
        *lines, verdict = review.stdout.decode().splitlines()
        # By the clock of a later year more is to be prepared than these.
        if any(line.startswith(("warning", "error")) for line in lines):
            self.assertEqual(review.returncode, NOT_DONE)
        else:
            self.assertEqual(review.returncode, DONE)
            self.assertRegex(
                verdict, r"^All is right as far as it is published: 78 calendars of 26 currencies, with \d+ notes\.$")
        output = ferrowindctl.run("apply", self.url(), "ALL", "2026..2028", "--yes").stdout.decode()
        self.assertEqual(output, "78 calendars are as planned.\n")


if __name__ == "__main__":
    unittest.main()
