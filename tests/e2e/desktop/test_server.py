"""The built desktop program on a PostgreSQL server that gets into trouble while an operator is at work: each trouble is
told where the operator looks, nothing that was done is lost, and the work goes on when the trouble is over."""

import os
import subprocess
import sys
import unittest

import second_server
import server
from desktop_session import DesktopSession, Screen, wait_for

PASSWORD = 'Ans%wer;42'
CURRENCY_ERROR = "Tessaro Calendar. Can't load currency"
RULES = 'Assign groups holidays for calendar - USD 2026'
USD = 840
SCREEN = None


def setUpModule():
    global SCREEN
    SCREEN = Screen()


def tearDownModule():
    SCREEN.end()


class ServerTest(unittest.TestCase):

    def setUp(self):
        self.is_server_stopped = False
        self.session = DesktopSession(SCREEN, os.environ['FERROWIND_PROGRAM'])
        self.addCleanup(self.session.end)
        self.database = server.Database(self)
        subprocess.run([os.environ['FERROWINDCTL_PROGRAM'], 'init', self.database.uri, '--year', '2026'],
                       check=True, stdout=subprocess.DEVNULL)
        self.url = self.database.login(self, 'anna', PASSWORD, role='ferrowind_operator')
        # Not before there is a screen, whose bus it is to find.
        import accessible
        self.accessible = accessible

    # Helpers -------------------------------------------------------------------------------------

    def stop_server(self):
        server.control('stop')
        self.is_server_stopped = True
        self.addCleanup(self.start_server)

    def start_server(self):
        if self.is_server_stopped:
            server.control('start')
        self.is_server_stopped = False

    def open_calendar(self):
        """Opens the Calendars window on USD 2026."""
        self.session.start('--open', '--database', self.url)
        self.session.window('Calendars')
        self.session.focus('Calendars')
        self.session.type('USD')
        self.session.keys('Right', 'Down')
        self.wait_first_day('1 Jan 2026 Thu')

    def wait_first_day(self, date):
        grid = self.accessible.GridReader(self.accessible.wait_window('Calendars'), 'Days')
        wait_for(lambda: grid.row_count() and grid.text(0, 'Date') == date, f'the day {date}')

    def texts(self, title):
        """Everything that the window says, title, labels and all."""
        window = self.accessible.wait_window(title)
        return [node.name for node in self.accessible.descendants(window) if self.accessible.is_showing(node)]

    def bars(self, title):
        return self.accessible.showing_texts(self.accessible.wait_window(title))

    def wait_told(self, title, *parts):
        """Until the window tells of a trouble with the parts in it, and no password."""
        def is_told():
            self.assert_alive()
            return any(all(part in text for part in parts) for text in self.texts(title))
        wait_for(is_told, f'{parts} in the window "{title}"')
        self.assertNotIn(PASSWORD, '\n'.join(self.texts(title)))

    def wait_untold(self, title):
        wait_for(lambda: not any(self.is_trouble(text) for text in self.texts(title)),
                 f'the end of the trouble in the window "{title}"')

    @staticmethod
    def is_trouble(text):
        return 'did not do what was asked' in text or ': refused.' in text

    def assert_alive(self):
        self.assertIsNone(self.session.app.poll(), self.session.printed())

    def first_day(self):
        return self.database.rows(f'SELECT TID1, ID2 FROM CldDay WHERE ID1 = {USD} AND Year1 = 2026 AND Day1 = 1')[0]

    def except_first_day(self):
        self.session.keys('Menu')
        wait_for(self.session.is_menu_open, 'the menu of the day')
        # The third tool, beyond a separator.
        self.session.keys('Down', 'Down', 'Down', 'Return')

    # While the window is open --------------------------------------------------------------------

    def test_a_stopped_server_is_told_in_the_windows_until_it_serves_again(self):
        self.open_calendar()
        self.stop_server()
        self.session.keys('Down')
        self.wait_told('Calendars', 'What is shown may be out of date', f'The database {self.database.name} at 127.0.0.1',
                       'cannot be connected to', '08001')
        self.wait_untold('Back office')
        self.wait_first_day('1 Jan 2026 Thu')
        self.start_server()
        self.session.keys('F5')
        self.wait_first_day('1 Jan 2027 Fri')
        for title in ('Calendars', 'Back office'):
            self.wait_untold(title)

    def test_a_silent_server_is_counted_down_in_the_windows_until_it_answers(self):
        self.url += '?call_timeout=1'
        self.open_calendar()
        silence = 'The server does not answer. Nothing can be read or changed until it does.'
        with second_server.silent_primary():
            self.session.keys('Down')
            for title in ('Calendars', 'Back office'):
                wait_for(lambda title=title: silence in self.bars(title), f'the silence in "{title}"')
            wait_for(lambda: 'Next try in 2 seconds' in self.bars('Calendars'), 'the countdown')
            self.press_button('Calendars', 'Try now')
            wait_for(lambda: 'Next try in 5 seconds' in self.bars('Calendars'), 'the try')
        for title in ('Calendars', 'Back office'):
            wait_for(lambda title=title: silence not in self.bars(title), f'the answer in "{title}"')
        self.session.keys('F5')
        self.wait_first_day('1 Jan 2027 Fri')

    def test_a_change_on_a_stopped_server_is_told_and_done_when_asked_for_again(self):
        self.open_calendar()
        before = self.first_day()
        self.session.keys('Tab')
        self.stop_server()
        self.except_first_day()
        self.wait_told('Calendars', 'Except Thursday 1 January 2026, USD: refused.', 'cannot be connected to')
        self.start_server()
        self.assertEqual(self.first_day(), before)
        self.session.keys('F5')
        self.wait_told('Calendars', 'Except Thursday 1 January 2026, USD: refused.')
        self.except_first_day()
        wait_for(lambda: self.first_day() == (1, 1), 'the exception in the database')
        self.wait_untold('Calendars')

    def test_the_windows_close_while_they_tell_of_a_trouble(self):
        self.open_calendar()
        self.stop_server()
        self.session.keys('F5')
        self.wait_told('Calendars', 'cannot be connected to')
        self.session.close('Calendars')
        self.session.wait_until_gone('Calendars')
        self.wait_told('Back office', 'cannot be connected to')
        self.session.close('Back office')
        self.assertEqual(self.session.app.wait(60), 0, self.session.printed())

    def test_the_window_takes_no_notice_of_a_restart(self):
        self.open_calendar()
        server.control('restart')
        self.session.keys('Down')
        self.wait_first_day('1 Jan 2027 Fri')
        self.wait_untold('Calendars')

    def test_a_server_that_is_restarted_in_the_middle_of_a_call_is_told(self):
        self.open_calendar()
        locker = subprocess.Popen(
            ['psql', '-X', '-q', self.database.uri, '-c', 'BEGIN; LOCK TABLE ferrowind.CldDay; SELECT pg_sleep(600)'],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(locker.wait, 60)
        self.addCleanup(locker.kill)
        wait_for(lambda: self.database.ask(
            "SELECT 1 FROM pg_locks WHERE relation = 'ferrowind.CldDay'::regclass AND granted"), 'the lock')
        self.session.keys('Down')
        # What is read once the operator rests on the days may wait before it; nobody is told of that.
        wait_for(lambda: self.database.ask(
            "SELECT 1 FROM pg_stat_activity "
            "WHERE usename = 'anna' AND wait_event_type = 'Lock' AND query LIKE '%cldgetmain%'"), 'the waiting call')
        server.control('restart')
        self.wait_told('Calendars', 'CldGetMain was interrupted')
        self.session.keys('F5')
        self.wait_first_day('1 Jan 2027 Fri')
        self.wait_untold('Calendars')

    def test_a_rule_that_could_not_be_added_is_told_and_can_be_added_later(self):
        self.open_calendar()
        self.session.keys('Tab', 'Menu')
        wait_for(self.session.is_menu_open, 'the menu of the day')
        self.session.keys('Down', 'Down', 'Return')
        self.wait_active(RULES)
        self.type_rule('Founding Day', '3 May')
        self.stop_server()
        self.session.keys('Return')
        self.wait_active('Ferrowind')
        self.wait_told('Ferrowind', 'Error 373249', 'cannot be connected to')
        self.session.keys('Return')
        wait_for(lambda: "Tessaro Calendar. Can't add holiday to database" in self.texts('Ferrowind'),
                 'what was not done')
        self.dismiss_messages(RULES)
        # The messages have told it.
        self.wait_untold(RULES)
        self.press_button(RULES, 'Show all')
        self.wait_told(RULES, 'Show the rules: the database did not do', 'cannot be connected to')
        self.assert_nothing_is_covered(RULES, 'Assign')
        self.hide_trouble(RULES)
        self.start_server()
        self.type_rule('Founding Day', '3 May')
        self.session.keys('Return')
        self.wait_active(RULES)
        self.assertEqual(self.database.rows("SELECT TID1, MY, MD FROM CldHoliday WHERE Name1 = 'Founding Day'"),
                         [(3, 5, 3)])
        self.wait_untold(RULES)

    def assert_nothing_is_covered(self, title, lowest_button):
        window = self.accessible.wait_window(title)
        button = self.accessible.wait_find(window, 'push button', lowest_button)
        told = next(node for node in self.accessible.descendants(window) if 'did not do what was asked' in node.name)
        wait_for(lambda: self.extents(button).y + self.extents(button).height < self.extents(told).y,
                 f'the button "{lowest_button}" above the trouble')

    def extents(self, node):
        import pyatspi
        return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)

    def hide_trouble(self, title):
        self.press_button(title, 'Hide')
        self.wait_untold(title)

    def press_button(self, title, name):
        button = self.accessible.wait_find(self.accessible.wait_window(title), 'push button', name)
        button.queryAction().doAction(0)

    def type_rule(self, name, date):
        """Into the editor, up to where Return adds it."""
        self.session.keys('alt+a')
        self.wait_active('Add holiday')
        self.session.type('Celebration')
        self.session.keys('Tab')
        self.session.type(name)
        self.session.keys('Tab')
        self.session.type(date)

    def dismiss_messages(self, title):
        """Confirms message after message until the window of that title has the keyboard."""
        def is_active():
            if self.session.active_title() == 'Ferrowind':
                self.session.keys('Return')
            return self.session.active_title() == title
        wait_for(is_active, f'the end of the messages before "{title}"')

    def wait_active(self, title):
        def is_active():
            self.assert_alive()
            return self.session.active_title() == title
        wait_for(is_active, f'the keyboard in the window "{title}"')

    # At the start --------------------------------------------------------------------------------

    def start_in_vain(self, url, *parts):
        """Starts the program, which must say what keeps it from opening the calendars, and live."""
        with self.subTest(parts=parts):
            self.session.start('--open', '--database', url)
            self.session.window('Ferrowind')
            wait_for(lambda: CURRENCY_ERROR in self.texts('Ferrowind'), 'the message')
            self.wait_told('Back office', *parts)
            self.session.focus('Ferrowind')
            self.session.keys('Return')
            self.session.wait_until_gone('Ferrowind')
            self.assert_alive()
            self.assertEqual(self.session.windows('Calendars'), [])
        self.session.stop()
        self.assertNotIn(PASSWORD, self.session.printed())

    def test_says_what_keeps_it_from_opening_a_database(self):
        self.start_in_vain(self.database.uri_of('anna', 'no' + PASSWORD), 'password authentication failed', '"anna"')
        vacant = server.Database(self)
        self.start_in_vain(vacant.uri_of('anna', PASSWORD), vacant.name, 'is no calendar database')
        self.start_in_vain(vacant.uri_of('anna', PASSWORD).replace(vacant.name, 'nowhere'), 'nowhere', 'does not exist')
        self.start_in_vain(self.database.login(self, 'stranger', PASSWORD), 'User does not have CONNECT privilege')
        self.database.ask(f'GRANT CONNECT ON DATABASE {self.database.name} TO stranger')
        self.addCleanup(lambda: self.database.ask('DROP OWNED BY stranger'))
        self.start_in_vain(self.database.uri_of('stranger', PASSWORD), 'does not permit this', '42501')
        self.start_in_vain(self.url + '?sslmode=require', 'SSL was required')

    def test_opens_once_a_stopped_server_is_started(self):
        self.stop_server()
        self.session.start('--open', '--database', self.url)
        self.session.window('Ferrowind')
        self.wait_told('Back office', 'cannot be connected to')
        self.start_server()
        self.session.focus('Ferrowind')
        self.session.keys('Return')
        self.session.wait_until_gone('Ferrowind')
        self.session.focus('Back office')
        self.session.keys('alt+o')
        self.session.window('Calendars')
        self.wait_untold('Back office')


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
