"""The day of an operator who prepares the euro's next year on a delivered database, from outside and by keyboard alone:
what the windows show after it, and what ferrowindctl reads from the database after each chapter, day by day. The same day
on a file and on the server that tools/with_postgres.sh started."""

import datetime
import os
import sys
import unittest

import bank_holidays
from desktop_session import DesktopSession, Screen
from operator_databases import FileDatabase, ServerDatabase
from operator_story import (CALENDARS, FIRST_YEAR, MESSAGE, NEW_COMMENT, NEW_POINTS, OLD_POINTS, PAST_POINT, YEARLY_RULES,
                            OperatorStory)

EUR = 978
YEAR = 2028
WORKING_DAY, HOLIDAY, CELEBRATION, HOLIDAY_POINT = 1, 2, 3, 4
EXCEPTION = 'Working day by exception'
REMOVED, RESTORED = 2, 4
TYPES = {WORKING_DAY: 'Working day', HOLIDAY: 'Holiday', CELEBRATION: 'Celebration', HOLIDAY_POINT: 'Holiday point'}

SCREEN = None


def setUpModule():
    global SCREEN
    SCREEN = Screen()


def tearDownModule():
    SCREEN.end()


class NextYear:
    """The day, and what must be in the database after it. An engine's class makes a delivered database."""

    def setUp(self):
        self.session = DesktopSession(SCREEN, os.environ['FERROWIND_PROGRAM'])
        self.addCleanup(self.session.end)
        self.database = self.make_database()
        # Not before there is a screen, whose bus it is to find.
        import accessible
        self.story = OperatorStory(self.session, accessible)

    def calendars(self):
        return {(row['ID1'], row['Year1']) for row in self.database.call('CldAllInfo')[0]}

    def rules_by_name(self):
        return {row['Name1']: row for row in self.database.call('CldAllInfo')[2]}

    def days(self, year=YEAR):
        """Type, the rule's name and the day's comment of each day by its date."""
        return {datetime.date.fromisoformat(row['ODate']): (row['TID1'], row['Name1'], row['Comment'])
                for row in self.database.call('CldGetMain', f'ID1={EUR}', f'Year1={year}')[0]}

    def expected_days(self, with_points):
        """The closing days as the bank's own rule has them; a date stands above the weekend that it falls on."""
        points = dict(zip(OLD_POINTS, (name for name, _, _ in NEW_POINTS)))
        closing_days = bank_holidays.euro(YEAR)
        expected = {}
        date = datetime.date(YEAR, 1, 1)
        while date.year == YEAR:
            expected[date] = (WORKING_DAY, None, None)
            if date.isoweekday() >= 6:
                expected[date] = (HOLIDAY, f'{date:%A}', None)
            name = closing_days.get(date)
            if name in YEARLY_RULES:
                expected[date] = (CELEBRATION, name, None)
            elif name is not None and with_points:
                expected[date] = (HOLIDAY_POINT, points[name], None)
            date += datetime.timedelta(days=1)
        return expected

    def test_a_new_year_by_keyboard_alone_has_the_days_that_the_publisher_announces_and_no_others(self):
        story = self.story
        delivered_rules = self.rules_by_name()
        delivered_calendars = self.calendars()
        year_before = self.days(YEAR - 1)
        last_entry = self.database.rows('SELECT max(EntryID) FROM CldHistory')[0][0]
        story.open(self.database.url)

        groups = story.look_at_the_year_before()
        for name in YEARLY_RULES + OLD_POINTS:
            self.assertTrue(any(group.startswith(f'Holiday name: {name} (') for group in groups), (name, groups))
        self.assertEqual(len(groups), len(YEARLY_RULES + OLD_POINTS) + 1)

        story.create_calendar()
        self.assertEqual(self.calendars() - delivered_calendars, {(EUR, YEAR)})
        self.assertEqual(set(self.days().values()), {(WORKING_DAY, None, None)})

        # All but the built-in one.
        story.assign_yearly_rules(len(delivered_rules) - 1)
        self.assertEqual(self.days(), self.expected_days(with_points=False))

        story.write_points()
        rules = self.rules_by_name()
        self.assertEqual({name: (rule['TID1'], rule['MD'], rule['MY'], rule['Comment']) for name, rule in rules.items()
                          if name not in delivered_rules},
                         {name: (HOLIDAY_POINT, int(when.split()[0]), 4, comment) for name, when, comment in NEW_POINTS})
        story.assign_points()
        expected = self.expected_days(with_points=True)
        self.assertEqual(self.days(), expected)

        story.except_day_with_message()
        expected[datetime.date(YEAR, 12, 23)] = (WORKING_DAY, EXCEPTION, MESSAGE)
        self.assertEqual(self.days(), expected)

        story.remove_rule(len(rules) - 1)
        rules[PAST_POINT]['Del'] = REMOVED
        self.assertEqual(self.rules_by_name(), rules)
        story.restore_rule()
        rules[PAST_POINT]['Del'] = RESTORED
        self.assertEqual(self.rules_by_name(), rules)

        story.edit_comment()
        rules['Labour Day (1 May)']['Comment'] = NEW_COMMENT
        self.assertEqual(self.rules_by_name(), rules)

        self.assertEqual(story.close_everything(), 0, self.session.printed())
        story.reopen(self.database.url)
        self.assert_shown(expected, rules)
        self.assertEqual(self.days(), expected)
        self.assertEqual(self.days(YEAR - 1), year_before)
        self.assertEqual(self.rules_by_name(), rules)
        self.assertEqual(self.database.rows(f'SELECT DISTINCT UserName FROM CldHistory WHERE EntryID > {last_entry}'),
                         [(self.database.operator,)])

    def assert_shown(self, expected_days, rules):
        """The Calendars window shows each day as the database has it."""
        grid = self.story.grid(CALENDARS)
        for row, (date, (day_type, rule, comment)) in enumerate(sorted(expected_days.items())):
            self.assertEqual(
                grid.texts(row),
                {'Date': f'{date.day} {date:%b} {date.year} {date:%a}', 'Day type': TYPES[day_type], 'Holiday name': rule or '',
                 'Description': rules[rule]['Comment'] or '' if rule else '', 'Comment': comment or '',
                 'Day of year': f'{date:%j}'.lstrip('0'), 'Day of month': str(date.day), 'Month': str(date.month),
                 'Month name': f'{date:%B}', 'Weekday': f'{date:%A}'})


class NextYearOnAFile(NextYear, unittest.TestCase):

    def make_database(self):
        return FileDatabase(self.session, FIRST_YEAR)


class NextYearOnAServer(NextYear, unittest.TestCase):

    def make_database(self):
        return ServerDatabase(self, FIRST_YEAR)


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
