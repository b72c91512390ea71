"""ferrowindctl export, import and reconcile: lists of closed days go out and come in, and nothing is lost on the way."""

import csv
import io
import json
import os
import pathlib
import shutil
import tempfile
import unittest

# Debian's own reader of calendar files, which this program has not been written with.
import icalendar

import ferrowindctl
import small_book
from ferrowindctl import DONE, NOT_DONE
from small_book import EURO

HOLIDAYS = {"2028-04-14": "Good Friday", "2028-12-25": "Christmas Day"}


class Exchange(small_book.WithSmallBooks):

    made = None

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.made = pathlib.Path(tempfile.mkdtemp(prefix="ferrowindctl-"))
        cls.addClassCleanup(shutil.rmtree, cls.made)

    def setUp(self):
        """Makes the database with EUR 2028 once for all tests."""
        if (self.made / "a.db").exists():
            ferrowindctl.InAFolder.setUp(self)
            shutil.copy(self.made / "a.db", self.path())
            return
        super().setUp()
        self.apply("EUR", 2028)
        shutil.copy(self.path(), self.made / "a.db")

    def entries(self):
        return [row["EntryID"] for row in self.call("CldGetHistory")[0]]

    def export(self, form, *options, currencies="EUR", years=2028, name="a.db"):
        result = ferrowindctl.run("export", self.url(name), currencies, years, "--format", form, *options)
        self.assertEqual((result.returncode, result.stderr), (DONE, b""))
        return result.stdout

    def events(self, text):
        return list(icalendar.Calendar.from_ical(text).walk("VEVENT"))

    def list(self, text, name="list.txt"):
        """The path of a file with that list."""
        path = self.path(name)
        path.write_bytes(text if isinstance(text, bytes) else text.encode())
        return path

    def import_(self, status, text, *options, name="list.txt", currency="EUR"):
        return self.ctl(status, "import", self.url(), currency, self.list(text, name), "--yes", *options)

    def assert_refused(self, text, *messages, name="list.txt", options=()):
        """The list is refused with these words, and nothing is changed."""
        before = self.entries()
        output, errors = self.import_(NOT_DONE, text, *options, name=name)
        self.assertEqual(output, "")
        for message in messages:
            self.assertIn(message, errors)
        self.assertEqual(self.entries(), before)

    # Out

    def test_a_second_reader_finds_all_day_events(self):
        self.apply("USD", 2028)
        events = self.events(self.export("ics", currencies="EUR,USD"))
        days = {(event.decoded("DTSTART").isoformat(), str(event["SUMMARY"])) for event in events}
        self.assertEqual(days, {("2028-04-14", "EUR: Good Friday"), ("2028-12-25", "EUR: Christmas Day"),
                                ("2028-07-04", "USD: Independence Day")})
        for event in events:
            self.assertEqual(event["DTSTART"].params["VALUE"], "DATE")
            self.assertEqual((event.decoded("DTEND") - event.decoded("DTSTART")).days, 1)
            self.assertEqual(event["TRANSP"], "TRANSPARENT")
        self.assertEqual(len({event["UID"] for event in events}), 3)

    def test_a_second_calendar_file_changes_the_events_of_the_first(self):
        first = self.events(self.export("ics"))
        [christmas] = [event for event in first if "Christmas" in event["SUMMARY"]]
        self.call("CldIUCelebrate", f"ID2={self.rule('Christmas Day')}", "Name1=Christmas", "TID1=3", "D1=2028-12-25", "MY=12", "MD=25")
        [renamed] = [event for event in self.events(self.export("ics")) if "Christmas" in event["SUMMARY"]]
        self.assertEqual(str(renamed["SUMMARY"]), "EUR: Christmas")
        self.assertEqual(renamed["UID"], christmas["UID"])
        self.assertGreater(renamed["SEQUENCE"], christmas["SEQUENCE"])
        self.assertGreaterEqual(renamed.decoded("LAST-MODIFIED"), christmas.decoded("LAST-MODIFIED"))
        self.assertEqual(renamed.decoded("DTSTAMP"), renamed.decoded("LAST-MODIFIED"))

    def test_the_same_calendars_give_the_same_bytes(self):
        for form in ("ics", "csv", "json", "txt"):
            self.assertEqual(self.export(form, "--all"), self.export(form, "--all"))

    def test_tables_are_read_by_other_programs(self):
        rows = list(csv.DictReader(io.StringIO(self.export("csv").decode())))
        self.assertEqual(rows[0], {"date": "2028-04-14", "weekday": "Friday", "name": "Good Friday", "type": "holiday",
                                   "currency": "EUR"})
        self.assertEqual(json.loads(self.export("json"))[1], {"date": "2028-12-25", "name": "Christmas Day", "type": "holiday",
                                                              "currency": "EUR"})
        self.assertEqual(self.export("txt"), b"2028-04-14 Good Friday\n2028-12-25 Christmas Day\n")

    def test_several_years_and_currencies_stand_in_one_list(self):
        self.apply("EUR", 2029)
        self.apply("USD", "2028..2029")
        for years in ("2028-2029", "2028..2029"):
            rows = json.loads(self.export("json", currencies="usd,EUR,USD", years=years))
            self.assertEqual({(row["currency"], row["date"][:4]) for row in rows},
                             {("EUR", "2028"), ("EUR", "2029"), ("USD", "2028"), ("USD", "2029")})
        _, errors = self.ctl(NOT_DONE, "export", self.url(), "EUR,USD", 2028, "--format", "txt")
        self.assertIn("A list in the format txt is of one currency", errors)

    def test_a_missing_calendar_is_no_empty_list(self):
        self.assertEqual(self.ctl(NOT_DONE, "export", self.url(), "EUR", "2028-2029", "--format", "csv", "--output", self.path("x")),
                         ("", "ferrowindctl: There is no calendar EUR 2029, so nothing is known of its days\n"))
        self.assertFalse(self.path("x").exists())

    def test_a_file_is_replaced_as_a_whole_or_not_at_all(self):
        target = self.path("list.csv")
        self.export("csv", "--output", target)
        self.assertEqual(target.read_bytes(), self.export("csv"))
        self.assertEqual(target.read_bytes(), self.export("csv", "--output", "-"))
        self.assertEqual(sorted(os.listdir(self.folder)), ["a.db", "list.csv"])
        folder = self.path("folder")
        folder.mkdir()
        _, errors = self.ctl(NOT_DONE, "export", self.url(), "EUR", 2028, "--format", "csv", "--output", folder)
        self.assertIn("cannot be written", errors)
        _, errors = self.ctl(NOT_DONE, "export", self.url(), "EUR", 2028, "--format", "csv", "--output", folder / "no" / "x")
        self.assertIn("cannot be written: No such file or directory", errors)

    # In

    def test_what_goes_out_comes_in_the_same(self):
        self.except_day(EURO, "2028-01-08", "Year-end work")
        self.assert_run(DONE, "init", self.url("b.db"), "--empty")
        expected = self.days(EURO, 2028)
        for form in ("ics", "csv", "json"):
            self.list(self.export(form, "--all"), f"list.{form}")
            self.ctl(DONE, "import", self.url(f"b.db"), "EUR", self.path(f"list.{form}"), "--yes")
            [rows] = self.call("CldGetMain", f"ID1={EURO}", "Year1=2028", name="b.db")
            found = {row["ODate"]: (row["Name1"], row["Comment"]) for row in rows if row["ID2"] is not None}
            # Nobody can read a reason for closing a day out of a list that has none.
            self.assertEqual(found, expected)
            self.assertEqual(self.export("csv", "--all", name="b.db"), self.export("csv", "--all"))
            self.path("b.db").unlink()
            self.assert_run(DONE, "init", self.url("b.db"), "--empty")

    def test_shows_what_changes_and_makes_it_in_one_call(self):
        before = self.entries()
        output, errors = self.import_(DONE, "14 April 2028 Good Friday\nMay 1, 2028: Labour Day\n")
        self.assertIn("EUR 2028, 2 days:\n", output)
        self.assertRegex(output, r"2028-05-01 +Monday +working day +Labour Day +add ")
        self.assertRegex(output, r"2028-12-25 +Monday +Christmas Day +working day +remove ")
        self.assertRegex(output, r"\nEUR 2028 is as in the list now; \"undo\" takes back the entry \d+\.\n\Z")
        self.assertEqual(errors, "")
        self.assertEqual(self.holidays(EURO, 2028), {"2028-04-14": "Good Friday", "2028-05-01": "Labour Day"})
        [entry, *others] = self.entries()
        self.assertEqual(others, before)
        self.ctl(DONE, "undo", self.url(), entry)
        self.assertEqual(self.holidays(EURO, 2028), HOLIDAYS)

    def test_changes_nothing_without_an_answer(self):
        before = self.entries()
        output, errors = self.ctl(NOT_DONE, "import", self.url(), "EUR", self.list("2028-05-01\n"), stdin=-3)
        self.assertRegex(output, r"2028-05-01 +Monday +working day +Bank holiday +add ")
        self.assertIn("--yes changes without asking", errors)
        self.assertEqual(self.entries(), before)

    def test_says_that_nothing_is_left_to_do(self):
        before = self.entries()
        output, errors = self.import_(DONE, "2028-04-14 Karfreitag\n2028-12-25 Christmas Day\n")
        self.assertEqual(output, "1 calendar is as in the list.\n")
        self.assertEqual(errors, "1 closed day keeps its name, which the list calls otherwise; --names takes the list's.\n")
        self.assertEqual(self.entries(), before)
        self.import_(DONE, "2028-04-14 Karfreitag\n2028-12-25\n", "--names")
        self.assertEqual(self.holidays(EURO, 2028), {"2028-04-14": "Karfreitag", "2028-12-25": "Christmas Day"})

    def test_a_list_from_standard_input(self):
        output, _ = self.ctl(DONE, "import", self.url(), "EUR", "-", "--yes", "--list-format", "csv",
                             input=b"2028-04-14,a\n2028-12-25,b\n")
        self.assertIn("as in the list", output)

    def test_a_new_calendar_gets_the_weekends_of_the_book(self):
        output, _ = self.import_(DONE, "2029-03-30\n2029-12-25 Christmas\n")
        self.assertIn("EUR 2029, a new calendar, 106 days:\n", output)
        self.assertIn("and 104 days of weekends\n", output)
        self.assertEqual(self.holidays(EURO, 2029), {"2029-03-30": "Good Friday", "2029-12-25": "Christmas Day"})
        _, errors = self.ctl(NOT_DONE, "import", self.url(), "SEK", self.list("2029-12-25\n"), "--yes")
        self.assertIn("Nothing tells which days are weekends in 2029", errors)

    def test_holidays_on_weekends_stay_closed_when_the_list_leaves_them_out(self):
        self.apply("EUR", 2027)
        self.assertEqual(self.holidays(EURO, 2027)["2027-12-25"], "Christmas Day")  # A Saturday.
        output, _ = self.import_(DONE, "2027-03-26 Good Friday\n")
        self.assertEqual(output, "1 calendar is as in the list.\n")
        self.reconcile(DONE, "2027-03-26 Good Friday\n")

    def test_what_the_database_would_refuse_stops_all(self):
        self.call("CldIUCelebrate", "Name1=Labour Day", "TID1=3", "D1=2028-05-01", "MY=5", "MD=1")
        self.call("CldIUCelebrate", f"ID2={self.rule('Labour Day')}", "Del=2")
        before = self.entries()
        _, errors = self.import_(NOT_DONE, "2028-04-14\n2028-05-01 Labour Day\n")
        self.assertEqual(errors, "EUR 2028 cannot be applied: The rule \"Labour Day\" is removed; restore it before.\n"
                                 "ferrowindctl: nothing was changed\n")
        self.assertEqual(self.entries(), before)

    def test_exceptions_are_closed_unless_they_are_kept(self):
        self.except_day(EURO, "2028-12-25", "Stock-taking")
        text = "2028-04-14\n2028-12-25\n"
        output, _ = self.import_(DONE, text, "--keep-exceptions")
        self.assertEqual(output, "1 calendar is as in the list but for 1 working day by exception.\n")
        output, _ = self.import_(DONE, text)
        self.assertIn("1 working day by exception that has a reason will be closed", output)
        self.assertEqual(self.holidays(EURO, 2028), HOLIDAYS)

    def test_dates_that_may_mean_two_days_are_refused_with_their_lines(self):
        self.assert_refused("2028-04-14\n01/02/2028 x\n\n31 April 2028\n",
                            f"{self.path('list.txt')}: line 2: \"01/02/2028 x\" does not begin with a date that can be read in "
                            "one way only; YYYY-MM-DD is expected, DD.MM.YYYY, or a month by its English name",
                            "; line 4: there is no day \"31 April 2028\"")

    def test_encodings_are_read_or_told(self):
        text = "2028-04-14 Gründonnerstag\n2028-12-25\n"
        for encoding in ("utf-8", "utf-8-sig", "utf-16"):
            output, _ = self.import_(DONE, text.encode(encoding))
            self.assertEqual(output, "1 calendar is as in the list.\n", encoding)
        self.assert_refused(text.encode("latin-1"), "list.txt: line 1: this is not UTF-8, but perhaps Latin-1 or Windows-1252")
        self.assert_refused(text.encode("utf-16-le"), "there is a NUL character", "UTF-16 without a byte order mark")

    def test_years_are_not_mixed_without_a_word(self):
        text = "2028-04-14\n2028-12-25\n2029-01-01\n"
        self.assert_refused(text, "The list has days of several years: 2028, 2029; say with --year which of them are whole")
        output, errors = self.import_(DONE, text, "--year", 2028)
        self.assertEqual(output, "1 calendar is as in the list.\n")
        self.assertIn("1 day of other years is left out: 2029.\n", errors)
        before = self.entries()
        output, _ = self.import_(DONE, text, "--year", "2028-2029")
        self.assertIn("EUR 2029 is made", output)
        self.assertEqual(self.entries()[1:], before)
        self.assert_refused(text, "The list has no day of EUR 2030", options=("--year", "2028..2030"))

    def test_long_files_are_refused_before_they_are_read(self):
        with open(self.path("long.txt"), "wb") as long:
            long.truncate(50_000_000)
        _, errors = self.ctl(NOT_DONE, "import", self.url(), "EUR", self.path("long.txt"), "--yes")
        self.assertIn("a list may have 4 MB at most, and this one is longer", errors)
        # It never ends, so that only who stops reading can refuse it.
        with open("/dev/zero", "rb") as endless:
            _, errors = self.ctl(NOT_DONE, "import", self.url(), "EUR", "-", "--yes", stdin=endless)
        self.assertIn("a list may have 4 MB at most", errors)

    def calendar(self, *events):
        lines = ["BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//Bank//EN"]
        for event in events:
            lines += ["BEGIN:VEVENT", "UID:x", *event, "END:VEVENT"]
        return "\r\n".join([*lines, "END:VCALENDAR", ""])

    def test_calendar_files_of_others(self):
        text = self.calendar(["DTSTART;VALUE=DATE:20000414", "RRULE:FREQ=YEARLY", "SUMMARY:April"],
                             ["DTSTART;VALUE=DATE:20281225", "DTEND;VALUE=DATE:20281227", "SUMMARY:Christmas"],
                             ["DTSTART;TZID=Europe/Rome:20281224T130000", "DTEND;TZID=Europe/Rome:20281224T180000", "SUMMARY:Eve"])
        self.assert_refused(text, "line 4: the event \"April\" cannot be read: it repeats without an end (RRULE); say with --year",
                            name="a.ics")
        output, errors = self.import_(DONE, text, "--year", 2028, name="a.ics")
        self.assertRegex(output, r"2028-12-26 +Tuesday +working day +Christmas +add ")
        self.assertIn("Line 16: 2028-12-24 \"Eve\" is a half day and stays closed as it is.\n", errors)
        self.assert_refused(text[:-40], "the file breaks off or is damaged", name="a.ics")

    def test_duplicates_and_half_days_are_told(self):
        output, errors = self.import_(DONE, "2028-04-14 Good Friday\n2028-12-25\n2028-04-14 Karfreitag\n2028-12-22 Noon, early close\n")
        self.assertEqual(output, "1 calendar is as in the list.\n")
        self.assertIn("Line 3: 2028-04-14 stands in line 1 already; the name \"Karfreitag\" is left out.\n", errors)
        self.assertIn("Line 4: 2028-12-22 \"Noon, early close\" is a half day and stays open as it is.\n", errors)
        self.assert_refused("2028-12-22\n2028-12-22 half day\n", "line 2: 2028-12-22 stands in line 1 already, as a holiday, and here as a half day")

    def test_a_file_that_is_not_there_is_named(self):
        _, errors = self.ctl(NOT_DONE, "import", self.url(), "EUR", self.path("none.csv"), "--yes")
        self.assertIn("none.csv cannot be read: No such file or directory", errors)

    # Beside each other

    def reconcile(self, status, text, *options, name="list.txt"):
        return self.ctl(status, "reconcile", self.url(), "EUR", self.list(text, name), *options)

    def test_agreement_is_status_0(self):
        before = self.entries()
        output, errors = self.reconcile(DONE, "2028-04-14 Karfreitag\n2028-12-25\n2028-12-30 a Saturday\n2028-12-22 half day\n")
        self.assertEqual(output, f"EUR is as {self.path('list.txt')} says: 1 calendar, no difference.\n")
        self.assertIn("Line 4: 2028-12-22 \"half day\" is a half day and not compared.\n", errors)
        for form in ("ics", "csv", "json", "txt"):
            self.reconcile(DONE, self.export(form, "--all"), name=f"list.{form}")
        self.assertEqual(self.entries(), before)

    def test_differences_are_a_table_and_status_1(self):
        self.except_day(EURO, "2028-12-25", "Stock-taking")
        output, errors = self.reconcile(NOT_DONE, "2028-12-25 Christmas\n2028-05-01\n")
        self.assertEqual([line.rstrip() for line in output.splitlines()[2:]], [
            "2028-04-14  Friday   Good Friday               not listed  closed in the calendar only",
            "2028-05-01  Monday   working day               closed      open in the calendar",
            "2028-12-25  Monday   Working day by exception  Christmas   open in the calendar"])
        self.assertEqual(errors, "")
        output, _ = self.reconcile(NOT_DONE, "2028-12-25 Christmas\n2028-05-01\n", "--format", "json")
        self.assertEqual(json.loads(output)[1], {"date": "2028-05-01", "weekday": "Monday", "calendar": None, "list": "",
                                                 "difference": "open in the calendar"})

    def test_weekends_count_where_the_list_names_them(self):
        lines = self.export("txt", "--all").decode().splitlines(keepends=True)
        self.reconcile(DONE, "".join(lines))
        self.assertIn("2028-01-01 Saturday\n", lines)
        lines.remove("2028-01-01 Saturday\n")
        output, _ = self.reconcile(NOT_DONE, "".join(lines))
        self.assertIn("2028-01-01  Saturday  Saturday  not listed  closed in the calendar only\n", output)

    def test_a_missing_calendar_cannot_be_compared(self):
        output, errors = self.reconcile(NOT_DONE, "2029-12-25\n")
        self.assertEqual((output, errors), ("", "ferrowindctl: There is no calendar EUR 2029, so nothing can be compared\n"))


if __name__ == "__main__":
    unittest.main()
