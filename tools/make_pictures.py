#!/usr/bin/python3
"""Makes docs/pictures/ anew: the pictures of the README, and one for each step of the user's guide.

usage: tools/make_pictures.py [PROGRAM_FOLDER [PICTURES...]]     (build/release/bin without it; all of them)

The programs are driven by key presses on a screen of their own, as the end-to-end tests do. Look at the pictures before
you commit them.
"""

import datetime
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / 'tests' / 'e2e' / 'desktop'))
sys.dont_write_bytecode = True

from desktop_session import DesktopSession, Screen, wait_for  # noqa: E402  pylint: disable=wrong-import-position
from operator_story import CALENDARS, FIRST_YEAR, PREVIEW, RULES, OperatorStory  # noqa: E402  pylint: disable=wrong-import-position

PICTURES = ROOT / 'docs' / 'pictures'
SIZE = (1350, 780)

GUIDE_STEPS = ('year-before', 'new-calendar', 'prepare-it', 'day-menu', 'rules', 'preview', 'new-point', 'assigned',
               'except-message', 'excepted', 'remove', 'removed', 'edit-rule')

# Currencies by their numbers: BRL, CAD, DKK, EUR, JPY and USD.
WEEKENDS_ONLY = (986, 124, 208, 978, 392, 840)
POUND = 826
TOGETHER = ('AUD', 'CAD', 'CHF', 'CNY', 'EUR', 'GBP', 'JPY', 'NOK', 'SEK', 'USD')

# Frames of the pictures: quiet, in the colours of the theme, and without boxes that a dialog would not have.
FRAME_COLORS = {
    'light': {'ground': '#e3e6ea', 'border': '#aab1bb', 'text': '#1c2026', 'faint': '#7a828d'},
    'dark': {'ground': '#2e333a', 'border': '#101215', 'text': '#e4e8ee', 'faint': '#8b95a2'},
}
FRAME_CONFIGURATION = '''<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
 <placement><policy>Smart</policy><center>yes</center></placement>
 <theme>
  <name>pictures</name><titleLayout>L</titleLayout><keepBorder>yes</keepBorder>
  <font place="ActiveWindow"><name>DejaVu Sans</name><size>9</size><weight>bold</weight></font>
  <font place="InactiveWindow"><name>DejaVu Sans</name><size>9</size><weight>bold</weight></font>
 </theme>
 <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
</openbox_config>
'''
FRAME_THEME = '''border.width: 1
padding.width: 8
padding.height: 6
window.handle.width: 0
window.client.padding.width: 0
window.client.padding.height: 0
window.label.text.justify: center
window.active.title.bg: flat solid
window.active.title.bg.color: {ground}
window.active.label.bg: parentrelative
window.active.label.text.color: {text}
window.active.border.color: {border}
window.active.title.separator.color: {border}
window.inactive.title.bg: flat solid
window.inactive.title.bg.color: {ground}
window.inactive.label.bg: parentrelative
window.inactive.label.text.color: {faint}
window.inactive.border.color: {border}
window.inactive.title.separator.color: {border}
'''


def in_theme(name, theme):
    """The light picture has no theme in its name."""
    return name if theme == 'light' else f'{name}-{theme}'


class Studio:
    """A screen whose frames can change their colours, and a camera that waits until the windows rest."""

    def __init__(self, folder):
        configuration = folder / 'rc.xml'
        configuration.write_text(FRAME_CONFIGURATION)
        self.theme = folder / 'share' / 'themes' / 'pictures' / 'openbox-3' / 'themerc'
        self.theme.parent.mkdir(parents=True)
        self._write_theme('light')
        self.screen = Screen(frames=('--config-file', str(configuration)), data_home=folder / 'share')

    def _write_theme(self, name):
        self.theme.write_text(FRAME_THEME.format(**FRAME_COLORS[name]))

    def use_frames(self, name):
        self._write_theme(name)
        subprocess.run(['openbox', '--reconfigure'], env=self.screen.environment, check=True)

    def take(self, name, session, title):
        """A picture of the window with its frame, and of what lies over it."""
        window = session.windows(re.escape(title))[-1]
        seen = []

        def is_at_rest():
            # Anew each time: the window, or the frame around it, may just be getting another size.
            area = self._frame(window)
            seen.append(subprocess.run(['import', '-silent', '-window', 'root', '-crop', area, '+repage', 'ppm:-'],
                                       env=self.screen.environment, stdout=subprocess.PIPE, check=True).stdout)
            # A blinking text cursor gives two pictures in turns.
            return seen.count(seen[-1]) >= 4
        wait_for(is_at_rest, 'windows at rest')
        PICTURES.mkdir(parents=True, exist_ok=True)
        path = PICTURES / f'{name}.png'
        subprocess.run(['convert', 'ppm:-', '-strip', '-define', 'png:compression-level=9', str(path)],
                       input=seen[-1], check=True)
        print(path.relative_to(ROOT), flush=True)

    def size_of(self, window):
        """Without its frame."""
        return self._geometry(window)[2:]

    def _geometry(self, window):
        told = subprocess.run(['xwininfo', '-id', window], env=self.screen.environment, capture_output=True, text=True,
                              check=True).stdout
        return tuple(int(re.search(label + r':\s+(-?\d+)', told)[1]) for label in
                     ('Absolute upper-left X', 'Absolute upper-left Y', 'Width', 'Height'))

    def _frame(self, window):
        x, y, width, height = self._geometry(window)
        extents = self.screen.property_of(window, '_NET_FRAME_EXTENTS')
        left, right, top, bottom = map(int, re.findall(r'\d+', extents.split('=')[1]))
        return f'{width + left + right}x{height + top + bottom}+{x - left}+{y - top}'


class Photographer:
    """A user of the programs who takes pictures on the way."""

    def __init__(self, studio, programs):
        self.studio = studio
        self.programs = programs
        self.session = DesktopSession(studio.screen, programs / 'ferrowind')
        import accessible  # Not before there is a screen, whose bus it is to find.
        self.story = OperatorStory(self.session, accessible, self.take_step)
        self.steps_to_take = set(GUIDE_STEPS)

    def arrange(self):
        """The Calendars window at the size of the pictures."""
        window = self.session.window(CALENDARS)
        self.session.xdotool('windowmove', '--sync', window, 60, 60)
        # The program may give the window the place it had before meanwhile, so once is not always enough.
        def has_size():
            self.session.xdotool('windowsize', window, *SIZE)
            return self.studio.size_of(window) == SIZE
        wait_for(has_size, 'the size of the pictures')

    def take(self, name):
        self.studio.take(name, self.session, CALENDARS)

    def take_step(self, name):
        """The window that the operator is in, at the first time of the step; a menu shows on the window below it."""
        if name not in self.steps_to_take:
            return
        self.steps_to_take.remove(name)
        self.studio.take(f'guide-{name}', self.session, self.session.active_title())

    # Pictures ------------------------------------------------------------------------------------

    def open_calendar(self, theme):
        """The year of the euro that stays the same, on the first of May."""
        self.session.database.parent.mkdir(parents=True)
        self.make_database(f'sqlite:{self.session.database}')
        self.studio.use_frames(theme)
        self.session.start('--open', '--theme', theme)
        self.story.wait_active(CALENDARS)
        self.arrange()
        self.session.type('EUR')
        self.session.keys('Right', 'Down')
        self.story.wait_rows(CALENDARS, 365)
        self.session.keys('Tab')
        self.story.go_to_day('1 May 2026 Fri')

    def take_calendars(self, theme):
        self.open_calendar(theme)
        self.take(f'calendars-{theme}')

    def take_grouped(self, name):
        """By month and type, with the holidays of April unfolded."""
        month, day_type = 7, 1
        self.session.keys('ctrl+g', 'Home', *['Right'] * month)
        self.story.choose_in_column_menu('g')
        self.session.keys('Down', *['Left'] * (month - day_type))
        self.story.choose_in_column_menu('g')
        self.story.choose_in_column_menu('o')
        self.session.keys('ctrl+Home', 'Down', 'Down', 'Down', 'Right')
        april_holidays = 8
        self.session.keys('Down', 'Down', 'Right', *['Down'] * (april_holidays + 1), 'Right')
        self.take(name)

    def take_finding(self, theme):
        """What is left of a year, and what a typed date means; behind the pictures of the Calendars window."""
        self.session.keys('ctrl+f')
        self.session.type('easter')
        self.story.wait_rows(CALENDARS, 2)
        self.take(in_theme('guide-find', theme))
        self.session.keys('Escape', 'ctrl+d')
        self.story.wait_active('Go to date')
        self.session.type('14 April')
        self.studio.take(in_theme('guide-go-to-date', theme), self.session, 'Go to date')
        self.session.keys('Escape')
        self.story.wait_active(CALENDARS)

    def take_news(self, theme):
        """That somebody else has changed the calendar on show."""
        # The bar takes its room from the days, and the current one is to be seen above it.
        self.session.keys(*['Down'] * 4, *['Up'] * 4)
        self.run_ctl('call', f'sqlite:{self.session.database}', 'CldIUMain', 'ID1=978', 'Year1=2026', 'TID1=1', 'ID2=1',
                     'Day1=121', 'Comment=Year-end processing')
        window = self.story.accessible.wait_window(CALENDARS)
        wait_for(lambda: any('changed this calendar' in text for text in self.story.accessible.showing_texts(window)),
                 'the bar')
        self.take(in_theme('guide-news', theme))

    def take_year_plan(self, theme):
        """Of a calendar that was just created."""
        self.session.database.parent.mkdir(parents=True)
        self.make_database(f'sqlite:{self.session.database}')
        self.studio.use_frames(theme)
        self.session.start('--open', '--theme', theme)
        self.story.wait_active(CALENDARS)
        self.session.type('USD')
        self.session.keys('ctrl+n')
        self.story.wait_active('Select year USD currency')
        self.session.keys('alt+r')
        self.session.type('2028')
        self.session.keys('Return')
        self.story.wait_active('New calendar')
        if theme == 'dark':
            # The story takes the light one.
            self.studio.take('guide-prepare-it-dark', self.session, 'New calendar')
        self.session.keys('alt+p')
        self.story.wait_active('Plan of USD 2028')
        self.session.keys('Down', 'Down', 'space')
        self.studio.take(f'guide-year-plan-{theme}', self.session, 'Plan of USD 2028')

    def take_board(self, theme):
        """Of years around today: this one is prepared, and the next as people leave it lying."""
        # What stands in the picture is no folder of this machine.
        os.chdir(self.session.home)
        url = 'sqlite:calendars.db'
        year = datetime.date.today().year
        self.run_ctl('init', url, '--year', str(year - 1))
        for currency in WEEKENDS_ONLY:
            self.run_ctl('call', url, 'CldIUMain', f'ID1={currency}', f'Year1={year + 1}')
            for weekday_rule in (2, 3):
                self.run_ctl('call', url, 'CldIUMain', f'ID1={currency}', f'Year1={year + 1}', 'TID1=2',
                             f'ID2={weekday_rule}')
        for currency in ('AUD', 'CHF', 'GBP'):
            self.run_ctl('apply', url, currency, str(year + 1), '--yes')
        # A working day by exception, and nobody has said why.
        self.run_ctl('call', url, 'CldIUMain', f'ID1={POUND}', f'Year1={year + 1}', 'TID1=1', 'ID2=1', 'Day1=1')
        self.studio.use_frames(theme)
        self.session.start('--database', url, '--theme', theme)
        self.story.wait_active('Back office')
        self.session.keys('Down', 'Down')
        self.studio.take(f'guide-board-{theme}', self.session, 'Back office')

    def run_ctl(self, *arguments):
        subprocess.run([self.programs / 'ferrowindctl', *arguments], check=True, stdout=subprocess.DEVNULL)

    def take_year_planner(self, theme):
        """Of one currency and of several, and beside the days."""
        self.open_calendar(theme)
        self.session.keys('ctrl+shift+y')
        self.take(in_theme('guide-year-beside-days', theme))
        self.session.keys('ctrl+p')
        self.story.wait_active('Year planner - EUR 2026')
        self.session.keys('ctrl+Home', *['Next'] * 3, 'shift+Right', 'shift+Right', 'shift+Right')
        self.studio.take(in_theme('guide-year-planner', theme), self.session, 'Year planner - EUR 2026')
        self.session.keys('alt+c')
        self.session.type(' '.join(TOGETHER))
        self.session.keys('Return')
        together = f'Year planner - {", ".join(TOGETHER)} 2026'
        self.story.wait_active(together)
        self.studio.take(in_theme('guide-year-planner-together', theme), self.session, together)
        self.take_announced_holiday(theme)

    def take_announced_holiday(self, theme):
        """Two days of mourning for three currencies, before a holiday that two of them have."""
        self.session.keys('alt+c')
        self.session.type('CHF EUR GBP')
        self.session.keys('Return')
        self.story.wait_active('Year planner - CHF, EUR, GBP 2026')
        # The first of May in the row of all, and the two working days before it.
        self.session.keys('ctrl+Home', *['Next'] * 4, 'Up', 'Up', 'shift+Left', 'shift+Left', 'ctrl+l')
        self.story.wait_active('Close days')
        self.session.type('National Day of Mourning')
        self.studio.take(in_theme('guide-close-days', theme), self.session, 'Close days')
        self.session.keys('Escape')

    def take_rule_book(self, theme):
        self.session.database.parent.mkdir(parents=True)
        self.make_database(f'sqlite:{self.session.database}')
        self.studio.use_frames(theme)
        self.session.start('--open', '--theme', theme)
        self.story.wait_active(CALENDARS)
        self.session.type('EUR')
        self.session.keys('ctrl+b')
        self.story.wait_active('Rule book of EUR')
        # From the currency by publisher and document to the rules.
        self.session.keys(*['Tab'] * 4, *['Down'] * 3)
        self.studio.take(in_theme('guide-rule-book', theme), self.session, 'Rule book of EUR')

    def take_why(self, theme):
        """Of a year that is as planned, with those around it; and of a rule that another currency has."""
        self.steps_to_take.clear()
        database = f'sqlite:{self.session.home / "why.sqlite"}'
        self.make_database(database)
        for year in ('2027', '2028'):
            self.run_ctl('apply', database, 'EUR', year, '--yes')
        self.studio.use_frames(theme)
        self.session.start('--open', '--database', database, '--theme', theme)
        self.story.wait_active(CALENDARS)
        self.arrange()
        self.session.type('EUR')
        self.session.keys('Right', 'Down', 'Down', 'Down')
        self.story.wait_rows(CALENDARS, 366)
        self.session.keys('Tab')
        self.story.go_to_day('14 Apr 2028 Fri')
        self.studio.take(in_theme('guide-why', theme), self.session, CALENDARS)
        self.story.open_rules()
        rows = self.story.grid(RULES).row_count()
        self.session.keys('ctrl+l')
        wait_for(lambda: self.story.grid(RULES).row_count() > rows, 'all rules')
        self.story.go_to_rule('Thanksgiving Day')
        self.session.keys('alt+i')
        self.story.wait_active(PREVIEW)
        self.studio.take(in_theme('guide-assign-preview', theme), self.session, PREVIEW)
        self.session.keys('Escape')

    def take_exchange(self, theme):
        """A list of which lines cannot be read, the plan of the mended one, and the question which calendars to export."""
        # What stands in the pictures is no folder of this machine.
        os.chdir(self.session.home)
        url = 'sqlite:calendars.db'
        self.make_database(url)
        self.studio.use_frames(theme)
        self.session.start('--database', url, '--theme', theme)
        self.story.wait_active('Back office')
        lines = ['2028-01-03 New Year holiday', '2028-04-14 Good Friday', '2028-04-17 Easter Monday',
                 '2028-05-01 Early May bank holiday', '2028-05-29 Spring bank holiday', '2028-06-05 Jubilee bank holiday',
                 '2028-08-28 Summer bank holiday', '2028-12-24 Christmas Eve (half day)', '2028-12-25 Christmas Day',
                 '2028-12-26 Boxing Day']
        wrong = [*lines[:3], '01/05/2028 Early May bank holiday', *lines[4:7], '2028-02-30 Christmas Eve', *lines[8:]]
        self.session.keys('alt+i')
        self.story.wait_active('Import a list')
        for name, text in (('as-announced.txt', wrong), ('bank-holidays.txt', lines)):
            pathlib.Path(name).write_text('\n'.join(text) + '\n')
            self.session.keys('alt+f', 'ctrl+a')
            self.session.type(name)
            self.session.keys('Tab', 'Tab')
            self.session.type('GBP')
            self.session.keys('Tab')
            self.session.type('2028')
            self.session.keys('Return')
            if text == wrong:
                window = self.story.accessible.wait_window('Import a list')
                wait_for(lambda: any('cannot be imported' in text for text in self.story.accessible.showing_texts(window)),
                         'what is wrong')
                if theme == 'light':
                    self.studio.take('guide-import-faults', self.session, 'Import a list')
        self.story.wait_active('Import of GBP 2028: bank-holidays.txt')
        self.studio.take(in_theme('guide-import-plan', theme), self.session, 'Import of GBP 2028: bank-holidays.txt')
        self.session.keys('Escape')
        self.story.wait_active('Back office')
        self.session.keys('alt+e')
        self.story.wait_active('Export calendars')
        self.session.keys('ctrl+a')
        self.session.type('EUR, GBP, USD')
        self.session.keys('Tab')
        self.session.type(FIRST_YEAR)
        self.session.keys('Tab')
        self.session.type(FIRST_YEAR)
        self.studio.take(in_theme('guide-export', theme), self.session, 'Export calendars')

    def take_history(self, theme):
        """Of a calendar with some changes, one of them undone."""
        self.session.database.parent.mkdir(parents=True)
        url = f'sqlite:{self.session.database}'
        self.make_database(url)
        self.run_ctl('apply', url, 'USD', '2028', '--yes')
        for day, reason in ((360, 'Stock-taking'), (148, 'Move to the new building'), (149, 'Move to the new building')):
            self.run_ctl('call', url, 'CldIUMain', 'ID1=840', 'Year1=2028', 'TID1=1', 'ID2=1', f'Day1={day}', f'Comment={reason}')
        self.studio.use_frames(theme)
        self.session.start('--open', '--theme', theme)
        self.story.wait_active(CALENDARS)
        self.session.keys('ctrl+h')
        self.story.wait_active('History')
        self.session.keys('alt+c')
        self.session.type('USD')
        self.session.keys('Down', 'Down', 'Tab', 'Tab', 'ctrl+z', 'Down', 'Down')
        self.studio.take(f'guide-history-{theme}', self.session, 'History')
        self.session.keys('Return')
        wait_for(lambda: 'as of' in self.session.active_title(), 'the calendar as it was')
        self.session.keys('ctrl+End', 'Page_Up')
        self.studio.take(f'guide-calendar-then-{theme}', self.session, self.session.active_title())
        self.session.keys('Escape')
        self.story.wait_active('History')
        self.session.keys('ctrl+d')
        self.story.wait_active('Calendar at a moment')
        self.studio.take(in_theme('guide-as-of', theme), self.session, 'Calendar at a moment')
        self.session.keys('Escape')

    def take_story(self):
        database = f'sqlite:{self.session.home / "story.sqlite"}'
        self.make_database(database)
        status = json.loads(subprocess.run([self.programs / 'ferrowindctl', 'status', database, '--format', 'json'], check=True,
                                           capture_output=True, text=True).stdout)
        about = status['results'][0]
        rules = dict(zip(about['fields'], about['rows'][0]))['Rules']
        self.studio.use_frames('light')
        self.story.tell(database, rules - 1, arrange=self.arrange)

    def make_database(self, url):
        """Of years that stay the same whenever the pictures are taken."""
        subprocess.run([self.programs / 'ferrowindctl', 'init', url, '--year', FIRST_YEAR], check=True)


def main():
    programs = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / 'build' / 'release' / 'bin').resolve()
    takes = {
        'dark': lambda user: (user.take_calendars('dark'), user.take_finding('dark'), user.take_news('dark')),
        'light': lambda user: (user.take_calendars('light'), user.take_finding('light'),
                               user.take_grouped('calendars-grouped')),
        'news': lambda user: (user.open_calendar('light'), user.take_news('light')),
        'board-dark': lambda user: user.take_board('dark'),
        'board': lambda user: user.take_board('light'),
        'plan-dark': lambda user: user.take_year_plan('dark'),
        'plan': lambda user: user.take_year_plan('light'),
        'planner': lambda user: user.take_year_planner('light'),
        'planner-dark': lambda user: user.take_year_planner('dark'),
        'rule-book': lambda user: user.take_rule_book('light'),
        'rule-book-dark': lambda user: user.take_rule_book('dark'),
        'why': lambda user: user.take_why('light'),
        'why-dark': lambda user: user.take_why('dark'),
        'exchange': lambda user: user.take_exchange('light'),
        'exchange-dark': lambda user: user.take_exchange('dark'),
        'history-dark': lambda user: user.take_history('dark'),
        'history': lambda user: user.take_history('light'),
        'story': lambda user: user.take_story(),
    }
    with tempfile.TemporaryDirectory(prefix='ferrowind-pictures-') as folder:
        studio = Studio(pathlib.Path(folder))
        try:
            for name, take in takes.items():
                if sys.argv[2:] and name not in sys.argv[2:]:
                    continue
                user = Photographer(studio, programs)
                try:
                    take(user)
                finally:
                    user.session.end()
        finally:
            studio.screen.end()


if __name__ == '__main__':
    main()
