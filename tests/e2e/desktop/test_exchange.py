"""A published list becomes a calendar and a calendar becomes a file, by keyboard alone: what the windows say, and what the
tables say after each step."""

import os
import sys
import unittest

from desktop_session import DesktopSession, Screen, wait_for
from operator_databases import FileDatabase
from planning_story import BOARD, PlanningWalk

EUR = 978
YEAR = 2028
IMPORT = 'Import a list'
EXPORT = 'Export calendars'
# Of the year's delivered holidays all but Easter Monday, and a new one.
LISTED = {'2028-01-01', '2028-04-14', '2028-05-01', '2028-09-12', '2028-12-25', '2028-12-26'}

SCREEN = None


def setUpModule():
    global SCREEN
    SCREEN = Screen()


def tearDownModule():
    SCREEN.end()


class Exchange(unittest.TestCase):

    def setUp(self):
        self.session = DesktopSession(SCREEN, os.environ['FERROWIND_PROGRAM'])
        self.addCleanup(self.session.end)
        self.database = FileDatabase(self.session, YEAR)
        # Not before there is a screen, whose bus it is to find.
        import accessible
        self.walk = PlanningWalk(self.session, accessible, YEAR)

    def holidays(self):
        """The days of EUR that have a rule other than a weekend's."""
        return {row['ODate'] for row in self.database.call('CldGetMain', f'ID1={EUR}', f'Year1={YEAR}')[0]
                if row['ID2'] is not None and row['TID1'] != 2}

    def calls(self):
        return [procedure for procedure, in self.database.rows(
            f'SELECT ProcedureName FROM CldHistory WHERE ID1 = {EUR} ORDER BY EntryID')]

    def write(self, name, text):
        path = self.session.home / name
        path.write_text(text)
        return path

    def preview(self, path):
        """In the window for a list, whose first field has the focus: the file, and with Tab the calendar."""
        self.session.keys('alt+f', 'ctrl+a')
        self.session.type(str(path))
        self.session.keys('Tab', 'Tab')
        self.session.type('EUR')
        self.session.keys('Tab')
        self.session.type(str(YEAR))
        self.session.keys('Return')

    def test_a_list_comes_in_and_goes_out_by_keyboard(self):
        before, calls = self.holidays(), self.calls()
        self.session.start('--database', self.database.url)
        self.walk.wait_active(BOARD)
        self.session.keys('alt+i')
        self.walk.wait_active(IMPORT)

        self.preview(self.write('wrong.txt', '2028-01-01 New Year\n2028-02-30 Nothing\n'))
        self.walk.wait_said(IMPORT, 'cannot be imported')
        faults = self.walk.table(IMPORT, 'What is wrong in the list')
        self.assertEqual(faults.column('Line'), ['2'])

        self.preview(self.write('list.txt', ''.join(f'{date} Holiday\n' for date in sorted(LISTED))))
        plan = f'Import of EUR {YEAR}: list.txt'
        self.walk.wait_active(plan)
        self.assertEqual(self.calls(), calls, 'a look changes nothing')
        self.session.keys('alt+a')
        self.walk.wait_said(plan, 'is as in the list')
        self.assertEqual(self.holidays(), LISTED)
        self.assertEqual(self.calls(), [*calls, 'CldApplyPlan', 'CldIUBook'], 'the rule book gets what it leaves open')
        self.session.keys('ctrl+z')
        wait_for(lambda: self.holidays() == before, 'the days as they were')
        self.assertEqual(self.calls(), [*calls, 'CldApplyPlan', 'CldIUBook', 'CldUndo', 'CldUndo'])
        self.session.keys('Escape')
        self.walk.wait_active(BOARD)

        path = self.write('out.csv', 'what stood there')
        self.session.keys('alt+e')
        self.walk.wait_active(EXPORT)
        self.session.keys('ctrl+a')
        self.session.type('EUR')
        self.session.keys('Tab')
        self.session.type(str(YEAR))
        self.session.keys('Tab')
        self.session.type(str(YEAR))
        self.session.keys('Return')
        self.walk.wait_active('Export as')
        self.session.keys('ctrl+a')
        self.session.type(str(path))
        self.session.keys('Return')
        # It asks before it replaces a file, in a window of the same title.
        wait_for(lambda: len(self.session.windows('Export as')) == 2, 'the question')
        self.assertEqual(path.read_text(), 'what stood there')
        self.session.keys('alt+y')
        self.walk.wait_said(EXPORT, 'are written to')
        self.assertEqual({line.split(',')[0] for line in path.read_text().splitlines()[1:]}, before)


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
