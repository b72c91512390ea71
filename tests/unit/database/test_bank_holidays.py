"""The derivation of bank holidays, which end-to-end tests compare delivered calendars with, where its result is known."""

import datetime
import unittest

import bank_holidays


class DerivedBankHolidays(unittest.TestCase):

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


if __name__ == "__main__":
    unittest.main()
