"""An operator's first day on an empty database, from outside and by keyboard alone: what the windows show and what the
tables hold after each chapter. The same day on a file and on the server that tools/with_postgres.sh started."""

import datetime
import getpass
import os
import subprocess
import sys
import unittest

import server
from desktop_session import DesktopSession, Screen, rows_of
from operator_story import CALENDARS, MESSAGE, NEW_COMMENT, RULES, OperatorStory

USD = 840
WORKING_DAY, HOLIDAY, CELEBRATION = 1, 2, 3
EXCEPTION_RULE = 1
REMOVED, RESTORED = 2, 4

RULE_DATES = {"New Year's Day": (1, 1), 'Independence Day': (7, 4), 'Christmas Day': (12, 25)}

SCREEN = None


def setUpModule():
    global SCREEN
    SCREEN = Screen()


def tearDownModule():
    SCREEN.end()


class FirstDay:
    """The day, and what must be in the tables after it. An engine's class makes an empty database and tells its URL, what
    a query gives there, and who the operator is."""

    def setUp(self):
        self.session = DesktopSession(SCREEN, os.environ['FERROWIND_PROGRAM'])
        self.addCleanup(self.session.end)
        self.make_database()
        # Not before there is a screen, whose bus it is to find.
        import accessible
        self.story = OperatorStory(self.session, accessible)

    def init(self, url):
        subprocess.run([os.environ['FERROWINDCTL_PROGRAM'], 'init', url, '--empty'], check=True)

    def rules_by_name(self):
        rows = self.rows('SELECT Name1, ID2, TID1, WD, MY, MD, Comment, Del FROM CldHoliday WHERE ID2 <> 1')
        return {row[0]: row[1:] for row in rows}

    def days(self):
        """Type, rule and comment of each day by its date."""
        rows = self.rows(f'SELECT ODate, TID1, ID2, Comment FROM CldDay WHERE ID1 = {USD} AND Year1 = 2028')
        return {datetime.date.fromisoformat(row[0]): row[1:] for row in rows}

    def expected_days(self):
        """The calendar as the five rules make it: a date rule stands above the weekend that it falls on."""
        rules = self.rules_by_name()
        expected = {}
        date = datetime.date(2028, 1, 1)
        while date.year == 2028:
            expected[date] = (WORKING_DAY, None, None)
            if date.isoweekday() >= 6:
                expected[date] = (HOLIDAY, rules['Saturday' if date.isoweekday() == 6 else 'Sunday'][0], None)
            for name, month_and_day in RULE_DATES.items():
                if (date.month, date.day) == month_and_day:
                    expected[date] = (CELEBRATION, rules[name][0], None)
            date += datetime.timedelta(days=1)
        return expected

    def test_a_first_day_by_keyboard_alone_leaves_what_was_done_on_screen_and_in_the_tables(self):
        story = self.story
        story.open(self.url)

        story.create_calendar()
        self.assertEqual(self.rows('SELECT ID1, Year1 FROM CldCalendar'), [(USD, 2028)])
        self.assertEqual(set(self.days().values()), {(WORKING_DAY, None, None)})

        story.add_rules()
        rules = self.rules_by_name()
        self.assertEqual({name: rule[1:5] for name, rule in rules.items()},
                         {'Saturday': (HOLIDAY, 7, None, None), 'Sunday': (HOLIDAY, 1, None, None),
                          "New Year's Day": (CELEBRATION, None, 1, 1),
                          'Independence Day': (CELEBRATION, None, 7, 4),
                          'Christmas Day': (CELEBRATION, None, 12, 25)})

        story.assign_all_rules()
        expected = self.expected_days()
        self.assertEqual(self.days(), expected)

        story.except_day_with_message()
        expected[datetime.date(2028, 12, 23)] = (WORKING_DAY, EXCEPTION_RULE, MESSAGE)
        self.assertEqual(self.days(), expected)

        story.remove_rule()
        self.assertEqual(self.rules_by_name()['Independence Day'][-1], REMOVED)
        story.restore_rule()
        self.assertEqual(self.rules_by_name()['Independence Day'][-1], RESTORED)

        story.edit_comment()
        rules['Christmas Day'] = (*rules['Christmas Day'][:5], NEW_COMMENT, None)
        rules['Independence Day'] = (*rules['Independence Day'][:6], RESTORED)
        self.assertEqual(self.rules_by_name(), rules)

        self.assertEqual(story.close_everything(), 0, self.session.printed())
        story.reopen(self.url)
        self.assert_shown(expected, rules)
        self.assertEqual(self.days(), expected)
        self.assertEqual(self.rules_by_name(), rules)
        self.assertEqual(self.rows('SELECT DISTINCT UserName FROM CldHistory'), [(self.operator,)])

    def assert_shown(self, expected_days, rules):
        """The Calendars window shows each day as the tables have it."""
        names = {rule[0]: name for name, rule in rules.items()} | {EXCEPTION_RULE: 'Working day by exception',
                                                                     None: ''}
        comments = {rule[0]: rule[5] for rule in rules.values()}
        types = {WORKING_DAY: 'Working day', HOLIDAY: 'Holiday', CELEBRATION: 'Celebration'}
        grid = self.story.grid(CALENDARS)
        for row, (date, (day_type, rule, comment)) in enumerate(sorted(expected_days.items())):
            self.assertEqual(
                grid.texts(row),
                {'Date': f'{date.day} {date:%b} {date.year}', 'Day type': types[day_type],
                 'Holiday name': names[rule], 'Description': comments.get(rule, ''), 'Comment': comment or '',
                 'Day of year': f'{date:%j}'.lstrip('0'), 'Day of month': str(date.day), 'Month': str(date.month),
                 'Month name': f'{date:%B}'})


class FirstDayOnAFile(FirstDay, unittest.TestCase):

    def make_database(self):
        self.file = self.session.home / 'empty.sqlite'
        self.url = f'sqlite:{self.file}'
        self.operator = getpass.getuser()
        self.init(self.url)

    def rows(self, query):
        return rows_of(self.file, query)


class FirstDayOnAServer(FirstDay, unittest.TestCase):
    """The operator has no right but an operator's."""

    def make_database(self):
        self.database = server.Database(self)
        self.operator = 'anna'
        self.init(self.database.uri)
        self.url = self.database.login(self, self.operator, 'Ans%wer;42', role='ferrowind_operator')

    def rows(self, query):
        return self.database.rows(query)


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
