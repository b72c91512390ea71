"""An operator's first day on an empty database, from outside and by keyboard alone: what the windows show and what the
tables hold after each chapter."""

import datetime
import os
import subprocess
import sys
import unittest

from desktop_session import DesktopSession, Screen, rows_of
from operator_story import CALENDARS, MESSAGE, NEW_COMMENT, RULES, OperatorStory

USD = 840
WORKING_DAY, HOLIDAY, CELEBRATION = 1, 2, 3
EXCEPTION_RULE = 1
REMOVED, RESTORED = 2, 4

RULE_DATES = {"New Year's Day": (1, 1), 'Independence Day': (7, 4), 'Christmas Day': (12, 25)}


def rules_by_name(database):
    rows = rows_of(database, 'SELECT Name1, ID2, TID1, WD, MY, MD, Comment, Del FROM CldHoliday WHERE ID2 <> 1')
    return {row[0]: row[1:] for row in rows}


def days(database):
    """Type, rule and comment of each day by its date."""
    rows = rows_of(database, 'SELECT ODate, TID1, ID2, Comment FROM CldDay WHERE ID1 = ? AND Year1 = ?', USD, 2028)
    return {datetime.date.fromisoformat(row[0]): row[1:] for row in rows}


class StoryTest(unittest.TestCase):

    def setUp(self):
        screen = Screen()
        self.addCleanup(screen.end)
        self.session = DesktopSession(screen, os.environ['FERROWIND_PROGRAM'])
        self.addCleanup(self.session.end)
        self.database = self.session.home / 'empty.sqlite'
        subprocess.run([os.environ['FERROWINDCTL_PROGRAM'], 'init', f'sqlite:{self.database}', '--empty'], check=True)
        # Not before there is a screen, whose bus it is to find.
        import accessible
        self.story = OperatorStory(self.session, accessible)

    def expected_days(self):
        """The calendar as the five rules make it: a date rule stands above the weekend that it falls on."""
        rules = rules_by_name(self.database)
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
        story.open(self.database)

        story.create_calendar()
        self.assertEqual(rows_of(self.database, 'SELECT ID1, Year1 FROM CldCalendar'), [(USD, 2028)])
        self.assertEqual(set(days(self.database).values()), {(WORKING_DAY, None, None)})

        story.add_rules()
        rules = rules_by_name(self.database)
        self.assertEqual({name: rule[1:5] for name, rule in rules.items()},
                         {'Saturday': (HOLIDAY, 7, None, None), 'Sunday': (HOLIDAY, 1, None, None),
                          "New Year's Day": (CELEBRATION, None, 1, 1),
                          'Independence Day': (CELEBRATION, None, 7, 4),
                          'Christmas Day': (CELEBRATION, None, 12, 25)})

        story.assign_all_rules()
        expected = self.expected_days()
        self.assertEqual(days(self.database), expected)

        story.except_day_with_message()
        expected[datetime.date(2028, 12, 23)] = (WORKING_DAY, EXCEPTION_RULE, MESSAGE)
        self.assertEqual(days(self.database), expected)

        story.remove_rule()
        self.assertEqual(rules_by_name(self.database)['Independence Day'][-1], REMOVED)
        story.restore_rule()
        self.assertEqual(rules_by_name(self.database)['Independence Day'][-1], RESTORED)

        story.edit_comment()
        rules['Christmas Day'] = (*rules['Christmas Day'][:5], NEW_COMMENT, None)
        rules['Independence Day'] = (*rules['Independence Day'][:6], RESTORED)
        self.assertEqual(rules_by_name(self.database), rules)

        self.assertEqual(story.close_everything(), 0, self.session.printed())
        story.reopen(self.database)
        self.assert_shown(expected, rules)
        self.assertEqual(days(self.database), expected)
        self.assertEqual(rules_by_name(self.database), rules)

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


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
