#!/usr/bin/python3
"""Holds what tools/make_date_tables.py computes to published almanacs, and the delivered tables to what it computes."""

import contextlib
import datetime
import importlib.util
import io
import pathlib
import shutil
import sys
import tempfile
import unittest

TOOL = pathlib.Path(sys.argv.pop())

loader_spec = importlib.util.spec_from_file_location("make_date_tables", TOOL)
tool = importlib.util.module_from_spec(loader_spec)
loader_spec.loader.exec_module(tool)


def dates(name: str, years: range) -> list[str]:
    table = next(table for table in tool.TABLES if table.name == name)
    return [date.isoformat() for year in years for date in table.dates(year)]


class DateTables(unittest.TestCase):

    def test_delivered_are_those_that_the_tool_computes(self):
        self.assertEqual(tool.main(["--check"]), 0)

    def test_that_differ_are_told(self):
        with tempfile.TemporaryDirectory() as folder:
            copy = pathlib.Path(folder) / "tables"
            shutil.copytree(tool.FOLDER, copy)
            passover = copy / "passover.txt"
            passover.write_text(passover.read_text(encoding="utf-8").replace("2027-04-22", "2027-04-23"), encoding="utf-8")
            (copy / "chuseok.txt").unlink()
            delivered, tool.FOLDER = tool.FOLDER, copy
            try:
                with contextlib.redirect_stdout(io.StringIO()) as told:
                    self.assertEqual(tool.main(["--check"]), 1)
            finally:
                tool.FOLDER = delivered
        self.assertEqual(told.getvalue().split("\n"), ["chuseok.txt differs from what is computed",
                                                       "passover.txt differs from what is computed", ""])

    # Hong Kong Observatory, Gregorian-Lunar calendar conversion tables. 2033 has its leap month after the eleventh.
    def test_give_the_lunar_days_of_hong_kong(self):
        self.assertEqual(dates("chinese-new-year", range(2024, 2035)),
                         ["2024-02-10", "2025-01-29", "2026-02-17", "2027-02-06", "2028-01-26", "2029-02-13", "2030-02-03",
                          "2031-01-23", "2032-02-11", "2033-01-31", "2034-02-19"])
        self.assertEqual(dates("buddhas-birthday", range(2023, 2028)),
                         ["2023-05-26", "2024-05-15", "2025-05-05", "2026-05-24", "2027-05-13"])
        self.assertEqual(dates("dragon-boat-festival", range(2023, 2028)),
                         ["2023-06-22", "2024-06-10", "2025-05-31", "2026-06-19", "2027-06-09"])
        self.assertEqual(dates("mid-autumn-festival", range(2032, 2035)), ["2032-09-19", "2033-09-08", "2034-09-27"])
        self.assertEqual(dates("double-ninth-festival", range(2023, 2028)),
                         ["2023-10-23", "2024-10-11", "2025-10-29", "2026-10-18", "2027-10-08"])
        self.assertEqual(dates("qingming-festival", range(2024, 2028)),
                         ["2024-04-04", "2025-04-04", "2026-04-05", "2027-04-05"])

    # Korea Astronomy and Space Science Institute: an hour east of China's time some new moons are on the next day.
    def test_give_the_lunar_days_of_korea(self):
        self.assertEqual(dates("korean-new-year", range(2024, 2029)),
                         ["2024-02-10", "2025-01-29", "2026-02-17", "2027-02-07", "2028-01-27"])
        self.assertEqual(dates("korean-buddhas-birthday", range(2024, 2028)),
                         ["2024-05-15", "2025-05-05", "2026-05-24", "2027-05-13"])
        self.assertEqual(dates("chuseok", range(2024, 2029)),
                         ["2024-09-17", "2025-10-06", "2026-09-25", "2027-09-15", "2028-10-03"])

    # Chile's official list of holidays since the day follows the solstice.
    def test_give_the_solstice_of_chile(self):
        self.assertEqual(dates("june-solstice-chile", range(2022, 2027)),
                         ["2022-06-21", "2023-06-21", "2024-06-20", "2025-06-20", "2026-06-21"])

    # Bank of Israel, holidays of 2013 and 2015 and business days of Zahav for 2026.
    def test_give_the_days_of_the_hebrew_calendar(self):
        self.assertEqual(dates("passover", range(2013, 2016)), ["2013-03-26", "2014-04-15", "2015-04-04"])
        self.assertEqual(dates("rosh-hashanah", range(2013, 2017)),
                         ["2013-09-05", "2014-09-25", "2015-09-14", "2016-10-03"])
        self.assertEqual(dates("tisha-b-av", range(2013, 2017)), ["2013-07-16", "2014-08-05", "2015-07-26", "2016-08-14"])
        self.assertEqual(dates("independence-day-of-israel", range(2013, 2018)),
                         ["2013-04-16", "2014-05-06", "2015-04-23", "2016-05-12", "2017-05-02"])
        self.assertEqual(dates("independence-day-of-israel", range(2026, 2027)), ["2026-04-22"])

    def test_have_no_hebrew_year_that_begins_on_a_forbidden_day_or_has_a_forbidden_length(self):
        for year in range(1900, 2199):
            new_year = tool.rosh_hashanah(year)
            self.assertIn(tool.WEEKDAYS[new_year.weekday()], ("Mon", "Tue", "Thu", "Sat"), new_year)
            self.assertIn(tool.rosh_hashanah(year + 1) - new_year,
                          [datetime.timedelta(days=days) for days in (353, 354, 355, 383, 384, 385)], new_year)


if __name__ == "__main__":
    unittest.main()
