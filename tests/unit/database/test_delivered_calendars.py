"""The delivered calendars and rules against the bank holidays that law and authorities' rules give."""

import calendar
import collections
import datetime
import unittest

import bank_holidays
import delivered_data

YEARS = (2026, 2027)


class DerivedBankHolidays(unittest.TestCase):
    """The derivation itself, where its result is known from other years."""

    def test_easter_falls_on_known_dates(self):
        known = [(2000, 4, 23), (2008, 3, 23), (2024, 3, 31), (2025, 4, 20), (2038, 4, 25)]
        self.assertEqual([bank_holidays.easter_sunday(y) for y, _, _ in known],
                         [datetime.date(*date) for date in known])

    def test_equinoxes_fall_on_the_days_that_japan_announced(self):
        self.assertEqual([bank_holidays.vernal_equinox_day(year).day for year in (2022, 2023, 2024, 2025)],
                         [21, 21, 20, 20])
        self.assertEqual([bank_holidays.autumnal_equinox_day(year).day for year in (2022, 2023, 2024, 2025)],
                         [23, 23, 22, 23])

    def test_a_substitute_takes_the_first_day_that_is_no_holiday_itself(self):
        self.assertEqual(bank_holidays.yen(2026)[datetime.date(2026, 5, 6)], "Substitute Holiday")
        self.assertEqual(bank_holidays.pound_sterling(2022)[datetime.date(2022, 12, 27)],
                         "Christmas Day (substitute day)")


class DeliveredCalendars(unittest.TestCase):

    def setUp(self):
        self.dates = delivered_data.read_calendar_dates()
        self.rules = {rule["Name1"]: rule for rule in delivered_data.read_rules()}

    def test_hold_the_five_currencies_for_2026_and_2027(self):
        self.assertEqual({(entry.currency, entry.date.year) for entry in self.dates},
                         {(currency, year) for currency in bank_holidays.BY_CURRENCY for year in YEARS})

    def test_list_exactly_the_holidays_that_the_rules_give(self):
        for currency, derive in bank_holidays.BY_CURRENCY.items():
            for year in YEARS:
                with self.subTest(currency=currency, year=year):
                    listed = {entry.date: entry.rule for entry in self.dates
                              if entry.currency == currency and entry.date.year == year}
                    self.assertEqual(listed, derive(year))

    def test_name_no_date_twice(self):
        twice = [key for key, count in
                 collections.Counter((entry.currency, entry.date) for entry in self.dates).items() if count > 1]
        self.assertEqual(twice, [])

    def test_are_in_order_of_date_within_each_currency(self):
        for currency in bank_holidays.BY_CURRENCY:
            dates = [entry.date for entry in self.dates if entry.currency == currency]
            self.assertEqual(dates, sorted(dates), currency)

    def test_use_dated_rules_only(self):
        types = {self.rules[entry.rule]["TID1"] for entry in self.dates}
        self.assertEqual(types, {delivered_data.FIXED_DATE_RULE, delivered_data.HOLIDAY_POINT_RULE})

    def test_use_a_fixed_date_rule_on_its_own_date_only(self):
        for entry in self.dates:
            rule = self.rules[entry.rule]
            if rule["TID1"] == delivered_data.FIXED_DATE_RULE:
                self.assertEqual((entry.date.month, entry.date.day), (rule["MY"], rule["MD"]), entry)

    def test_use_currencies_of_the_dictionary(self):
        currencies = {row["Ccy"] for row in delivered_data.read_currencies() if row["CcyType"] == 0}
        self.assertLessEqual({entry.currency for entry in self.dates}, currencies)

    def test_are_the_tables_of_the_documentation(self):
        def cell(currency, year, month):
            days = [entry.date for entry in self.dates
                    if entry.currency == currency and (entry.date.year, entry.date.month) == (year, month)]
            return ", ".join(f"({day.day})" if day.weekday() >= bank_holidays.SATURDAY else str(day.day)
                             for day in days)

        text = (delivered_data.REPOSITORY / "docs" / "delivered-calendars.md").read_text(encoding="utf-8")
        for year in YEARS:
            table = "\n".join(
                f"| {calendar.month_name[month]} | "
                + " | ".join(cell(currency, year, month) for currency in bank_holidays.BY_CURRENCY) + " |"
                for month in range(1, 13))
            self.assertIn(f"| {year} | EUR | USD | GBP | JPY | CHF |\n|---|---|---|---|---|---|\n{table}\n", text)

    def test_have_the_rules_that_the_users_guide_tells_to_select(self):
        guide = (delivered_data.REPOSITORY / "docs" / "users-guide.md").read_text(encoding="utf-8")
        types = (delivered_data.FIXED_DATE_RULE, delivered_data.HOLIDAY_POINT_RULE)
        for currency in bank_holidays.BY_CURRENCY:
            used = {entry.rule for entry in self.dates if entry.currency == currency}
            [row] = [line.strip("| ").split(" | ") for line in guide.splitlines() if line.startswith(f"| {currency} | ")]
            self.assertEqual([set(cell.split("; ")) for cell in row[1:]],
                             [{rule for rule in used if self.rules[rule]["TID1"] == each} for each in types], currency)


class DeliveredRules(unittest.TestCase):

    def setUp(self):
        self.rules = delivered_data.read_rules()

    def test_have_unique_names_without_regard_to_case(self):
        names = [rule["Name1"].strip().casefold() for rule in self.rules]
        self.assertEqual(len(names), len(set(names)))
        self.assertNotIn("working day by exception", names)

    def test_have_unique_numbers_that_leave_1_to_the_built_in_rule(self):
        numbers = [rule["ID2"] for rule in self.rules]
        self.assertEqual(numbers, list(range(2, 2 + len(numbers))))

    def test_close_the_weekend_counted_from_sunday(self):
        weekdays = {rule["Name1"]: rule["WD"] for rule in self.rules
                    if rule["TID1"] == delivered_data.WEEKDAY_RULE}
        self.assertEqual(weekdays, {"Saturday": 7, "Sunday": 1})

    def test_carry_a_weekday_or_a_date_by_their_type(self):
        for rule in self.rules:
            with self.subTest(rule=rule["Name1"]):
                if rule["TID1"] == delivered_data.WEEKDAY_RULE:
                    self.assertEqual((rule["D1"], rule["MY"], rule["MD"]), (None, None, None))
                else:
                    date = datetime.date.fromisoformat(rule["D1"])
                    self.assertEqual((rule["MY"], rule["MD"], rule["WD"]), (date.month, date.day, None))

    def test_give_a_holiday_point_one_of_its_dates(self):
        dates = collections.defaultdict(set)
        for entry in delivered_data.read_calendar_dates():
            dates[entry.rule].add(entry.date.isoformat())
        for rule in self.rules:
            if rule["TID1"] == delivered_data.HOLIDAY_POINT_RULE:
                self.assertIn(rule["D1"], dates[rule["Name1"]], rule["Name1"])

    def test_are_all_used_by_a_calendar(self):
        used = {entry.rule for entry in delivered_data.read_calendar_dates()}
        unused = [rule["Name1"] for rule in self.rules
                  if rule["TID1"] != delivered_data.WEEKDAY_RULE and rule["Name1"] not in used]
        self.assertEqual(unused, [])

    def test_are_not_removed(self):
        self.assertEqual({rule["Del"] for rule in self.rules}, {None})


if __name__ == "__main__":
    unittest.main()
