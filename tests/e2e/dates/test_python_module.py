"""The Python module by itself, on calendars that are given to it."""

import concurrent.futures
import datetime
import enum
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import ferrowind_business_days as business_days
from ferrowind_business_days import Calendars, Convention, DayState

MAIN_YEARS = (2026, 2027)


def day(text):
    return datetime.date.fromisoformat(text)


def days_of(year, *closed):
    """A year with closed weekends and these days."""
    first = datetime.date(year, 1, 1)
    days = (first + datetime.timedelta(i) for i in range((datetime.date(year + 1, 1, 1) - first).days))
    return "".join("1" if date.weekday() >= 5 or date.isoformat() in closed else "0" for date in days)


def calendars(**closed):
    """EUR, USD and JPY in two years; with keywords the closed days of one."""
    return Calendars.given({code: {year: days_of(year, *closed.get(code, ())) for year in MAIN_YEARS}
                            for code in ("EUR", "USD", "JPY")})


class Asking(unittest.TestCase):

    def test_a_day_is_open_closed_or_not_prepared(self):
        calendar = calendars(EUR=["2026-12-25"]).calendar("EUR")
        self.assertEqual([calendar.state(day(text)) for text in ("2026-12-24", "2026-12-25", "2028-01-03")],
                         [DayState.OPEN, DayState.CLOSED, DayState.NOT_PREPARED])
        self.assertIs(calendar.is_business_day(day("2026-12-24")), True)
        self.assertIs(calendar.is_business_day(day("2026-12-25")), False)

    def test_closed_days_are_listed(self):
        calendar = calendars(EUR=["2026-12-25"]).calendar("EUR")
        self.assertEqual(calendar.closed_days(day("2026-12-24"), day("2026-12-27")),
                         [day("2026-12-25"), day("2026-12-26"), day("2026-12-27")])
        self.assertEqual(calendar.closed_days(day("2026-12-27"), day("2026-12-24")), [])

    def test_a_calendar_knows_what_is_prepared(self):
        calendar = calendars().calendar("EUR")
        self.assertEqual(calendar.horizon(), (day("2026-01-01"), day("2027-12-31")))
        self.assertEqual([calendar.is_prepared(year) for year in (2025, 2026, 2028)], [False, True, False])
        self.assertIsNone(Calendars.given({"EUR": {2026: days_of(2026)}, "USD": {2027: days_of(2027)}})
                          .calendar("EUR", "USD").horizon())

    def test_several_currencies_are_joined(self):
        both = calendars(EUR=["2026-05-01"], JPY=["2026-05-04"]).calendar("EUR", "JPY")
        self.assertEqual(both.next(day("2026-04-30")), day("2026-05-05"))
        self.assertEqual(repr(both), "<Calendar EUR+JPY>")

    def test_a_closed_trade_date_counts_as_the_next_or_stays(self):
        pair = calendars(EUR=["2026-12-22"]).pair("EURUSD")
        self.assertEqual(pair.days_to_spot, 2)
        self.assertEqual(pair.spot_date(day("2026-12-22")), day("2026-12-25"))
        self.assertEqual(pair.spot_date(day("2026-12-22"), trade_date_stays=True), day("2026-12-24"))
        self.assertEqual(pair.value_date(day("2026-12-22"), "SN", trade_date_stays=True), day("2026-12-25"))

    def test_own_conventions_replace_those_of_the_library(self):
        years = {code: {2026: days_of(2026)} for code in ("CAD", "USD")}
        self.assertEqual(Calendars.given(years).pair("USDCAD").days_to_spot, 1)
        self.assertEqual(Calendars.given(years, "spot USD/CAD 0\n").pair("USDCAD").days_to_spot, 0)

    def test_a_number_is_whatever_python_takes_for_one(self):
        class Count(enum.IntEnum):
            TWO = 2

        calendar = calendars().calendar("EUR")
        self.assertEqual(calendar.add(day("2026-01-05"), Count.TWO), day("2026-01-07"))
        for text in (1.0, "1", None):
            with self.subTest(text), self.assertRaises(TypeError):
                calendar.add(day("2026-01-05"), text)
        with self.assertRaises(TypeError):
            calendar.is_prepared(2026.0)

    def test_codes_are_the_same_in_small_letters(self):
        made = Calendars.given({"eur": {2026: days_of(2026)}, "USD": {2026: days_of(2026)}})
        self.assertEqual(made.currencies, ["EUR", "USD"])
        self.assertEqual(made.calendar("eur").next(day("2026-05-01")), day("2026-05-04"))

    def test_many_threads_ask_at_a_time(self):
        calendar = calendars().calendar("EUR")
        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            answers = set(pool.map(lambda _: calendar.add(day("2026-01-05"), 100), range(400)))
        self.assertEqual(len(answers), 1)


class Failing(unittest.TestCase):

    def assert_fails(self, kind, text, action, *arguments):
        with self.assertRaises(kind) as caught:
            action(*arguments)
        self.assertIn(text, str(caught.exception))

    def test_each_failure_is_an_exception_of_its_own(self):
        made = calendars()
        calendar = made.calendar("EUR")
        self.assert_fails(business_days.NotPrepared, "EUR 2028 is not prepared", calendar.next, day("2028-05-01"))
        self.assert_fails(business_days.UnknownCurrency, "There is no calendar of QQQ", made.calendar, "QQQ")
        self.assert_fails(business_days.InvalidArgument, "\"soon\" is no tenor", made.pair("EURUSD").value_date,
                          day("2026-12-22"), "soon")
        self.assert_fails(business_days.InvalidArgument, "EUREUR", made.pair, "EUREUR")
        self.assert_fails(business_days.InvalidArgument, "Sideways", Convention.named, "Sideways")
        self.assert_fails(business_days.InvalidArgument, "is too large", calendar.add, day("2026-05-01"), 2**40)
        self.assert_fails(ValueError, "NUL", made.calendar, "EUR\0")

    def test_a_calendar_without_an_open_day_does_not_loop(self):
        closed = Calendars.given({"EUR": {2026: "1" * 365, 2027: "1" * 365}}).calendar("EUR")
        self.assert_fails(business_days.NoBusinessDay, "no business day of EUR", closed.next, day("2026-01-01"))

    def test_days_that_are_no_years_are_refused(self):
        self.assert_fails(business_days.InvalidArgument, "2026", Calendars.given, {"EUR": {2026: "01"}})

    def test_codes_that_are_none_are_refused(self):
        year = {2026: days_of(2026)}
        self.assert_fails(business_days.InvalidArgument, "\"EURO\" is no code", Calendars.given, {"EURO": year})
        self.assert_fails(business_days.InvalidArgument, "two calendars of EUR", Calendars.given, {"EUR": year, "eur": year})
        self.assert_fails(business_days.InvalidArgument, "at least one currency", calendars().calendar)

    def test_a_database_that_is_not_there_is_told(self):
        with tempfile.TemporaryDirectory() as folder:
            with self.assertRaises(business_days.Error) as caught:
                Calendars.open(f"sqlite:{folder}/none.db")
            self.assertIn("none.db", str(caught.exception))
            self.assertFalse(os.path.exists(pathlib.Path(folder) / "none.db"))

    def test_what_was_taken_outlives_closed_calendars(self):
        with calendars() as made:
            calendar = made.calendar("EUR")
        self.assertEqual(calendar.next(day("2026-05-01")), day("2026-05-04"))
        self.assert_fails(business_days.Error, "closed", made.calendar, "EUR")
        made.close()


def run_ferrowindctl(*arguments):
    """The program has its own runtime of the sanitizers."""
    environment = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}
    subprocess.run([os.environ["FERROWINDCTL"], *arguments], check=True, capture_output=True, timeout=120, env=environment)


class Finding(unittest.TestCase):

    def test_the_library_is_found_beside_the_module(self):
        with tempfile.TemporaryDirectory() as folder:
            beside = pathlib.Path(folder) / "ferrowind_business_days"
            shutil.copytree(pathlib.Path(business_days.__file__).parent, beside,
                            ignore=shutil.ignore_patterns("__pycache__"))
            (beside / "libferrowind_business_days.so.1").symlink_to(os.environ["FERROWIND_BUSINESS_DAYS_LIBRARY"])
            environment = {**os.environ, "PYTHONPATH": folder}
            del environment["FERROWIND_BUSINESS_DAYS_LIBRARY"]
            run = subprocess.run([sys.executable, "-B", "-c", "import ferrowind_business_days as b; print(b.__version__)"],
                                 env=environment, capture_output=True, text=True, timeout=120)
            self.assertEqual((run.returncode, run.stdout), (0, business_days.__version__ + "\n"), run.stderr)


class Reloading(unittest.TestCase):

    def test_a_changed_database_is_told_and_answers_anew(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        url = f"sqlite:{folder.name}/calendars.db"
        run_ferrowindctl("init", url, "--year", "2026")
        with Calendars.open(url) as made:
            before = made.calendar("EUR")
            self.assertFalse(made.reload())
            run_ferrowindctl("conventions", "set", url, "spot EUR/USD 1")
            run_ferrowindctl("call", url, "CldIUMain", "ID1=978", "Year1=2026", "TID1=1", "ID2=1", "Day1=359",
                             "ODate=2026-12-25", "Comment=open")
            self.assertEqual(made.reload(), business_days.Changes([], ["EUR"], [], True))
            self.assertEqual([calendar.state(day("2026-12-25")) for calendar in (before, made.calendar("EUR"))],
                             [DayState.CLOSED, DayState.OPEN])
            self.assertEqual(made.pair("EURUSD").days_to_spot, 1)
            self.assertFalse(made.reload())
            os.remove(f"{folder.name}/calendars.db")
            with self.assertRaises(business_days.Error):
                made.reload()
            self.assertEqual(made.calendar("EUR").state(day("2026-12-25")), DayState.OPEN)

    def test_given_calendars_have_no_changes(self):
        self.assertFalse(calendars().reload())

    def test_currencies_are_listed(self):
        self.assertEqual(calendars().currencies, ["EUR", "JPY", "USD"])


if __name__ == "__main__":
    unittest.main()
