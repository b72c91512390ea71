"""The day on which an operator prepares the next year of all currencies, from the first start to what the history tells of
it: what the windows say, and what ferrowindctl and the tables say after each step. By keyboard alone, and by what an
assistive tool can do alone; on a file, and on the server that tools/with_postgres.sh started."""

import datetime
import os
import subprocess
import sys
import unittest

import bank_holidays
from desktop_session import DesktopSession, Screen, wait_for
from operator_databases import FileDatabase, ServerDatabase, ferrowindctl
from planning_story import MOURNING, REASON, TOGETHER, AccessibleWalk, KeyboardWalk, day_in_words

EUR = 978
NUMBERS = {'CHF': 756, 'EUR': EUR, 'GBP': 826}
HOLIDAY_POINT = 4
SATURDAY_RULE, SUNDAY_RULE = 2, 3
NEXT_YEAR = datetime.date.today().year + 1
# On no list of any of the three, whatever the year.
ANNOUNCED = bank_holidays.nth_weekday(NEXT_YEAR, 9, 2, 2)
EASTER_MONDAY = bank_holidays.after_easter(NEXT_YEAR, 1)

SCREEN = None


def setUpModule():
    global SCREEN
    SCREEN = Screen()


def tearDownModule():
    SCREEN.end()


class PlanningStory:
    """An engine's class makes the database, and another one chooses how the operator walks."""

    def setUp(self):
        self.session = DesktopSession(SCREEN, os.environ['FERROWIND_PROGRAM'])
        self.addCleanup(self.session.end)
        self.database = self.make_database(NEXT_YEAR - 2)
        self.leave_next_year_lying()
        self.first_entry = self.database.rows('SELECT max(EntryID) FROM CldHistory')[0][0]
        # Not before there is a screen, whose bus it is to find.
        import accessible
        self.walk = self.Walk(self.session, accessible, NEXT_YEAR)

    def leave_next_year_lying(self):
        """As people do who have only entered the weekends."""
        for currency in NUMBERS.values():
            of_year = (f'ID1={currency}', f'Year1={NEXT_YEAR}')
            ferrowindctl('call', self.database.administrator_url, 'CldIUMain', *of_year)
            for rule in (SATURDAY_RULE, SUNDAY_RULE):
                ferrowindctl('call', self.database.administrator_url, 'CldIUMain', *of_year, 'TID1=2', f'ID2={rule}')

    # What is in the database ---------------------------------------------------------------------

    def marked_days(self, currency, year=NEXT_YEAR):
        """The names of the rules, by date, of the days that have one other than a weekend's."""
        return {datetime.date.fromisoformat(row['ODate']): row['Name1']
                for row in self.database.call('CldGetMain', f'ID1={NUMBERS[currency]}', f'Year1={year}')[0]
                if row['ID2'] is not None and row['ID2'] not in (SATURDAY_RULE, SUNDAY_RULE)}

    def entries(self):
        """Who has called which procedure for which currency since the story began, the oldest first."""
        return self.database.rows('SELECT UserName, ProcedureName, ID1 FROM CldHistory '
                                  f'WHERE EntryID > {self.first_entry} ORDER BY EntryID')

    def calendars_of_next_year(self):
        return self.database.rows(f'SELECT count(*) FROM CldCalendar WHERE Year1 = {NEXT_YEAR}')[0][0]

    def book_of(self, currency):
        return [(row['Name1'], row['Expression']) for row in self.database.call('CldGetBook', f'ID1={NUMBERS[currency]}')[1]]

    def pages(self, path):
        return subprocess.run(['pdftotext', '-layout', str(path), '-'], check=True, capture_output=True, text=True,
                              timeout=60).stdout

    # The story -----------------------------------------------------------------------------------

    def test_the_next_year_from_the_first_start_to_the_history(self):
        walk = self.walk
        walk.start(self.database.url)
        walk.wait_on_board('Weekends only', *TOGETHER)
        count = len(walk.board())
        self.assertEqual(self.calendars_of_next_year(), len(TOGETHER))

        walk.look_at_all_plans(count)
        self.assertEqual(self.entries(), [], 'a plan that is only looked at changes nothing')
        walk.apply_plans(count)
        walk.wait_on_board('Prepared', *TOGETHER)
        self.assertEqual({state for state in walk.board().values() if 'repared' not in state}, set())
        self.assertEqual(self.calendars_of_next_year(), count)
        self.assertEqual(len(self.entries()), count)
        closing_days = bank_holidays.euro(NEXT_YEAR)
        self.assertEqual(sorted(self.marked_days('EUR')), sorted(closing_days))

        walk.open_calendar_of_euro()
        walk.open_planner_of_three()
        books = {currency: self.book_of(currency) for currency in TOGETHER}
        holidays = {currency: self.marked_days(currency) for currency in TOGETHER}
        walk.ask_to_close(ANNOUNCED)
        weekday = day_in_words(ANNOUNCED)
        self.assertEqual(walk.what_will_happen(),
                         [line for currency in TOGETHER for line in (
                             (f'{currency} {NEXT_YEAR}', weekday, 'Added: is closed'),
                             (currency, 'Rule book', 'Added: gets it as a date of its own'))])
        self.assertEqual(len(self.entries()), count, 'nothing is closed before the operator says so')
        self.assertEqual(walk.close_days(), '3 days are closed now and entered in 3 rule books')
        for currency in TOGETHER:
            self.assertEqual(self.marked_days(currency), {**holidays[currency], ANNOUNCED: MOURNING})
            self.assertEqual(self.book_of(currency), books[currency] + [(MOURNING, ANNOUNCED.isoformat())])
        self.assertEqual(self.entries()[count:],
                         [(self.database.operator, procedure, NUMBERS[currency])
                          for procedure in ('CldApplyPlan', 'CldIUBook') for currency in TOGETHER])
        self.assertEqual([row['TID1'] for row in self.database.call('CldAllInfo')[2] if row['Name1'] == MOURNING],
                         [HOLIDAY_POINT])
        walk.wait_on_board('Prepared', *TOGETHER)
        walk.close_planner()

        walk.go_to(ANNOUNCED)
        why = walk.wait_why(MOURNING)
        self.assertIn('as planned', why)
        self.assertIn(ANNOUNCED.isoformat(), why)
        wait_for(lambda: self.database.operator in walk.wait_why(MOURNING), 'who has closed the day')

        walk.except_day(EASTER_MONDAY)
        wait_for(lambda: self.marked_days('EUR')[EASTER_MONDAY] == 'Working day by exception', 'the exception')
        self.assertIn(REASON, walk.wait_why('Reason'))
        self.assertEqual(self.entries()[-1], (self.database.operator, walk.EXCEPTS_BY, EUR))

        self.assertIn(f'Excepted {day_in_words(EASTER_MONDAY)}: {REASON}', walk.ask_to_undo())
        self.assertEqual(self.marked_days('EUR')[EASTER_MONDAY], 'Working day by exception')
        walk.undo()
        wait_for(lambda: self.marked_days('EUR') == {**holidays['EUR'], ANNOUNCED: MOURNING}, 'the day as it was')
        self.assertEqual(self.entries()[-1], (self.database.operator, 'CldUndo', EUR))

        pdf = self.session.home / 'year.pdf'
        walk.open_planner_of_three()
        walk.save_planner(pdf)
        pages = self.pages(pdf)
        for text in (*TOGETHER, str(NEXT_YEAR), MOURNING, 'Easter Monday', 'Christmas Day'):
            self.assertIn(text, pages)
        self.assertNotIn(REASON, pages)
        walk.close_planner()

        walk.open_history_of_all(count + 8)
        changes = walk.changes(count + 8)
        self.assertEqual({who for who, _, _ in changes}, {self.database.operator})
        excepted = f'Excepted {day_in_words(EASTER_MONDAY)}: {REASON}'
        closed = f'Closed {day_in_words(ANNOUNCED)} as {MOURNING}'
        self.assertEqual([told for _, *told in changes[:8]],
                         [[f'EUR {NEXT_YEAR}', f'Undid: {excepted}'], [f'EUR {NEXT_YEAR}', f'{excepted} (undone)'],
                          *([currency, f'Changed the rule book of {currency}: {len(books[currency]) + 1} rules']
                            for currency in reversed(TOGETHER)),
                          *([f'{currency} {NEXT_YEAR}', closed] for currency in reversed(TOGETHER))])
        for _, calendar, change in changes[8:]:
            self.assertRegex(change, f'^Prepared {calendar}: [0-9]+ days$')
        self.assertEqual(len({calendar for _, calendar, _ in changes[8:]}), count)
        walk.leave()


class OnAFile:
    def make_database(self, first_year):
        return FileDatabase(self.session, first_year)


class OnAServer:
    def make_database(self, first_year):
        return ServerDatabase(self, first_year)


class ByKeyboardOnAFile(OnAFile, PlanningStory, unittest.TestCase):
    Walk = KeyboardWalk


class ByKeyboardOnAServer(OnAServer, PlanningStory, unittest.TestCase):
    Walk = KeyboardWalk


class ByAssistiveToolOnAFile(OnAFile, PlanningStory, unittest.TestCase):
    Walk = AccessibleWalk


class ByAssistiveToolOnAServer(OnAServer, PlanningStory, unittest.TestCase):
    Walk = AccessibleWalk


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
