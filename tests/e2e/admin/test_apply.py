"""ferrowindctl apply: calendars become what they should be, after the user has seen and said so."""

import os
import pty
import re
import signal
import subprocess
import unittest

import ferrowindctl
import small_book
from ferrowindctl import DONE, NOT_DONE
from small_book import DOLLAR, EURO

HOLIDAYS = {"2028-04-14": "Good Friday", "2028-12-25": "Christmas Day"}


class Apply(small_book.WithSmallBooks):

    def calendars(self):
        return [(row["ID1"], row["Year1"]) for row in self.call("CldAllInfo")[0]]

    def entries(self):
        return [row["EntryID"] for row in self.call("CldGetHistory")[0]]

    def apply_on_a_terminal(self, answer, *arguments, meanwhile=lambda: None):
        """Answers what the program asks; its output, what the terminal shows, and its exit status."""
        screen, terminal = pty.openpty()
        self.addCleanup(os.close, screen)
        process = subprocess.Popen([ferrowindctl.PROGRAM, "apply", self.url(), *map(str, arguments)], stdin=terminal,
                                   stdout=subprocess.PIPE, stderr=terminal)
        os.close(terminal)
        shown = self.read_until(screen, "[y/N]")
        meanwhile()
        os.write(screen, f"{answer}\n".encode())
        output = process.communicate(timeout=60)[0].decode()
        shown = self.read_until(screen, "\0", shown)
        return output, shown, process.returncode

    def test_makes_a_calendar_and_its_rules(self):
        output, errors = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes")
        self.assertEqual(self.holidays(EURO, 2028), HOLIDAYS)
        self.assertEqual(len(self.days(EURO, 2028)), 53 + 53 + 2)
        self.assertIn("EUR 2028, a new calendar, 108 days:\n", output)
        self.assertIn("2028-04-14  Friday   working day  Good Friday    add     Easter Sunday 16 April 2028, two days before\n", output)
        self.assertIn("\nand 106 days of weekends\n", output)
        self.assertRegex(output, r"\nEUR 2028 is made; \"undo\" takes back the entry \d+\.\n$")
        self.assertEqual(errors, "")

    def test_changes_what_differs_in_one_call(self):
        self.apply("EUR", 2028)
        self.assign(EURO, "2028-04-13", "Good Friday")
        self.assign(EURO, "2028-12-25", "Good Friday")
        before = self.entries()
        output, _ = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes")
        self.assertIn("EUR 2028, 2 days:\n", output)
        self.assertEqual(self.holidays(EURO, 2028), HOLIDAYS)
        self.assertEqual(self.entries()[1:], before)

    def test_says_that_nothing_is_left_to_do(self):
        self.apply("EUR", 2028)
        before = self.entries()
        self.assertEqual(self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes"), ("1 calendar is as planned.\n", ""))
        self.assertEqual(self.ctl(DONE, "apply", self.url(), "EUR", 2028), ("1 calendar is as planned.\n", ""))
        self.assertEqual(self.entries(), before)

    def test_takes_several_years_and_all_currencies_that_have_a_book(self):
        output, _ = self.ctl(DONE, "apply", self.url(), "all", "2027..2028", "--yes")
        self.assertEqual(self.calendars(), [(DOLLAR, 2027), (DOLLAR, 2028), (EURO, 2027), (EURO, 2028)])
        self.assertEqual(re.findall(r"^(\w+ \d+) is made", output, re.MULTILINE),
                         ["EUR 2027", "EUR 2028", "USD 2027", "USD 2028"])
        self.assertEqual(self.holidays(DOLLAR, 2027), {"2027-07-04": "Independence Day",
                                                       "2027-07-05": "Independence Day (observed)"})

    def test_passes_over_years_after_the_last_day_of_a_money(self):
        self.call("CldIUCurrency", f"CcyID={DOLLAR}", "Ccy=USD", "CcyType=0", "Name=US Dollar", "LastDay=2027-06-30")
        _, errors = self.ctl(DONE, "apply", self.url(), "ALL", "2027..2028", "--yes")
        self.assertEqual(errors, "USD 2028 is left out: USD is money until 2027-06-30.\n")
        self.assertEqual(self.calendars(), [(DOLLAR, 2027), (EURO, 2027), (EURO, 2028)])
        _, errors = self.ctl(DONE, "apply", self.url(), "ALL", "2028..2030", "--yes")
        self.assertEqual(errors, "USD 2028..2030 is left out: USD is money until 2027-06-30.\n")

    def test_passes_over_years_before_the_books_hold(self):
        self.store_book(EURO, [*small_book.WEEKEND, small_book.CHRISTMAS], since=2028)
        _, errors = self.ctl(DONE, "apply", self.url(), "ALL", "2026..2028", "--yes")
        self.assertEqual(errors, "EUR 2026..2027 is left out: the book holds from 2028 on.\n")
        self.assertEqual(self.calendars(), [(DOLLAR, 2026), (DOLLAR, 2027), (DOLLAR, 2028), (EURO, 2028)])
        self.store_book(DOLLAR, [*small_book.WEEKEND, small_book.INDEPENDENCE], since=2028)
        before = self.entries()
        output, errors = self.ctl(NOT_DONE, "apply", self.url(), "ALL", 2027, "--yes")
        self.assertEqual(output, "")
        self.assertEqual(errors, "EUR USD 2027 is left out: the books hold from 2028 on.\n"
                                 "ferrowindctl: nothing was changed, as nothing is planned for these years\n")
        self.assertEqual(self.entries(), before)

    def test_refuses_a_year_after_the_last_day_of_a_money_before_it_plans(self):
        self.call("CldIUCurrency", f"CcyID={DOLLAR}", "Ccy=USD", "CcyType=0", "Name=US Dollar", "LastDay=2027-06-30")
        self.assertEqual(self.ctl(NOT_DONE, "apply", self.url(), "USD", 2028, "--yes"),
                         ("", "ferrowindctl: USD is money until 2027-06-30, so it has no calendar of 2028\n"))

    def test_leaves_exceptions_alone_if_asked(self):
        self.apply("EUR", 2028)
        self.except_day(EURO, "2028-12-25", "Stock-taking")
        output, _ = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes", "--keep-exceptions")
        self.assertEqual(output, "1 calendar is as planned but for 1 working day by exception.\n")
        self.assign(EURO, "2028-04-13", "Good Friday")
        output, _ = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes", "--keep-exceptions")
        self.assertRegex(output, r"\nEUR 2028 is as planned now but for 1 working day by exception; \"undo\" takes back the entry \d+\.\n\Z")
        self.assertEqual(self.days(EURO, 2028)["2028-12-25"], ("Working day by exception", "Stock-taking"))
        self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes")
        self.assertEqual(self.days(EURO, 2028)["2028-12-25"], ("Christmas Day", None))

    def test_tells_of_closed_days_that_the_book_does_not_have_and_leaves_them_alone_if_asked(self):
        self.apply("EUR", 2028)
        self.call("CldIUCelebrate", "Name1=Fair", "TID1=4", "D1=2028-03-01", "MY=3", "MD=1")
        self.assign(EURO, "2028-03-01", "Fair")
        output, _ = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes", "--keep-exceptions")
        self.assertEqual(output, "1 calendar is as planned but for 1 closed day that the rule book does not have.\n")
        self.assertEqual(self.days(EURO, 2028)["2028-03-01"], ("Fair", None))
        output, _ = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes")
        self.assertIn("  remove  Not in the rule book: Fair\n", output)
        self.assertRegex(output, r"\n1 closed day that the rule book does not have will be opened; --keep-exceptions "
                                 r"leaves it closed\.\nEUR 2028 is as planned now;")
        self.assertNotIn("2028-03-01", self.days(EURO, 2028))

    def test_shows_the_reasons_of_exceptions_and_counts_them_before_it_closes_them(self):
        self.apply("EUR", 2028)
        self.except_day(EURO, "2028-12-25", "Open, the boss says")
        self.except_day(EURO, "2028-04-14")
        output, _ = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes")
        self.assertIn("  exception  25 December; now open by exception: Open, the boss says\n", output)
        self.assertRegex(output, r"\n1 working day by exception that has a reason will be closed; --keep-exceptions "
                                 r"leaves them open\.\nEUR 2028 is as planned now;")
        self.except_day(EURO, "2028-04-14")
        self.assertNotIn("a reason", self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes")[0])

    def test_ends_after_the_running_call_when_it_is_told_to_and_says_how_far_it_came(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(number):
                before = len(self.calendars())
                years = "1950..1999" if number == signal.SIGINT else "2000..2049"
                process = subprocess.Popen([ferrowindctl.PROGRAM, "apply", self.url(), "ALL", years, "--yes"],
                                           stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
                self.addCleanup(process.kill)
                line = next(line for line in process.stdout if " is made; " in line)
                process.send_signal(number)
                output, errors = process.communicate(timeout=60)
                made = (line + output).count(" is made; ")
                self.assertEqual(process.returncode, NOT_DONE)
                self.assertEqual(errors, f"ferrowindctl: Stopped; {made} of 100 calendars are made.\n")
                self.assertLess(made, 100)
                self.assertEqual(len(self.calendars()) - before, made)

    def test_leaves_a_calendar_that_was_changed_meanwhile_and_makes_the_others(self):
        self.apply("ALL", 2028)
        self.assign(EURO, "2028-04-13", "Good Friday")
        self.assign(DOLLAR, "2028-04-13", "Good Friday")
        output, shown, status = self.apply_on_a_terminal("y", "ALL", 2028,
                                                         meanwhile=lambda: self.except_day(EURO, "2028-12-24", "Stock-taking"))
        self.assertEqual(status, NOT_DONE)
        self.assertIn("ferrowindctl: EUR 2028 was changed meanwhile; nothing was changed in it, run it again", shown)
        self.assertNotIn("EUR 2028 is as planned now", output)
        self.assertIn("USD 2028 is as planned now", output)
        self.assertEqual(self.days(EURO, 2028)["2028-04-13"], ("Good Friday", None))
        self.assertNotIn("2028-04-13", self.days(DOLLAR, 2028))

    def test_makes_an_announced_working_day_one_by_exception(self):
        self.store_book(EURO, [{"Name1": "Working Saturday", "TID1": 1, "Expression": "2028-01-08"}, *small_book.WEEKEND])
        self.apply("EUR", 2028)
        self.assertEqual(self.days(EURO, 2028)["2028-01-08"], ("Working day by exception", "Working Saturday"))
        self.assertIn("is as planned", self.ctl(DONE, "plan", self.url(), "EUR", 2028)[0])

    def test_changes_nothing_without_a_terminal_to_ask_on(self):
        output, errors = self.ctl(NOT_DONE, "apply", self.url(), "EUR", 2028, stdin=subprocess.DEVNULL)
        self.assertIn("EUR 2028, a new calendar", output)
        self.assertIn("--yes", errors)
        self.assertEqual(self.calendars(), [])

    def test_asks_on_a_terminal(self):
        for answer in ["n", "", "yesterday"]:
            with self.subTest(answer):
                output, shown, status = self.apply_on_a_terminal(answer, "EUR", 2028)
                self.assertIn("Change 1 calendar? [y/N]", shown)
                self.assertIn("EUR 2028, a new calendar", output)
                self.assertEqual(status, NOT_DONE)
                self.assertEqual(self.calendars(), [])
        for answer, year in [("y", 2028), ("YES", 2029)]:
            with self.subTest(answer):
                self.assertEqual(self.apply_on_a_terminal(answer, "EUR", year)[2], DONE)
                self.assertIn((EURO, year), self.calendars())

    def test_says_that_nothing_was_changed_when_it_is_stopped_at_the_question(self):
        screen, terminal = pty.openpty()
        self.addCleanup(os.close, screen)
        process = subprocess.Popen([ferrowindctl.PROGRAM, "apply", self.url(), "EUR", "2028"], stdin=terminal,
                                   stdout=subprocess.DEVNULL, stderr=terminal)
        os.close(terminal)
        shown = self.read_until(screen, "[y/N]")
        process.send_signal(signal.SIGINT)
        shown = self.read_until(screen, "\0", shown)
        self.assertTrue(shown.endswith("\r\nferrowindctl: Stopped; nothing was changed\r\n"), shown)
        self.assertEqual(process.wait(timeout=60), -signal.SIGINT)
        self.assertEqual(self.calendars(), [])

    def test_says_that_all_is_done_when_its_output_cannot_be_written(self):
        with open("/dev/full", "wb") as full:
            result = ferrowindctl.run("apply", self.url(), "EUR", 2028, "--yes", stdout=full)
        self.assertEqual(result.returncode, NOT_DONE)
        self.assertEqual(result.stderr.decode(), "ferrowindctl: cannot write the output; all the rest is done\n")
        self.assertEqual(self.calendars(), [(EURO, 2028)])

    def test_changes_nothing_when_the_database_would_refuse_one_calendar(self):
        self.apply("USD", 2021)
        self.call("CldIUCelebrate", f"ID2={self.rule('Independence Day')}", "Del=2")
        before = self.entries()
        output, errors = self.ctl(NOT_DONE, "apply", self.url(), "ALL", 2028, "--yes")
        self.assertIn("USD 2028 cannot be applied: The rule \"Independence Day\" is removed; restore it before.\n", errors)
        self.assertIn("nothing was changed", errors)
        self.assertNotIn("is made", output)
        self.assertEqual(self.entries(), before)

    def test_is_taken_back_by_undo(self):
        self.apply("EUR", 2028)
        self.assign(EURO, "2028-12-25", "Good Friday", "by mistake")
        mess = self.days(EURO, 2028)
        output, _ = self.ctl(DONE, "apply", self.url(), "EUR", 2028, "--yes")
        entry = re.search(r"the entry (\d+)", output).group(1)
        self.assertNotEqual(self.days(EURO, 2028), mess)
        self.ctl(DONE, "undo", self.url(), entry)
        self.assertEqual(self.days(EURO, 2028), mess)

    def test_refuses_years_that_are_none(self):
        for years, reason in [("28", "neither a year"), ("2028..", "neither a year"), ("2028-", "neither a year"),
                              ("2030..2028", "run backwards"), ("2030-2028", "run backwards"), ("2028..2200", "2200")]:
            with self.subTest(years):
                self.assertIn(reason, self.ctl(NOT_DONE, "apply", self.url(), "EUR", years, "--yes")[1])
        self.assertEqual(self.calendars(), [])


if __name__ == "__main__":
    unittest.main()
