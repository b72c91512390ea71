"""How an operator prepares the next year of all currencies, closes a day that was announced for three of them, looks at why
a day is closed, excepts a day and takes that back, saves the year and reads in the history what was done. Each walk tells it
by means of its own: one by key presses alone, the other by what an assistive tool can do alone."""

from desktop_session import wait_for

BOARD = 'Back office'
CALENDARS = 'Calendars'
CLOSE_DAYS = 'Close days'
HISTORY = 'History'

TOGETHER = ('CHF', 'EUR', 'GBP')
MOURNING = 'National Day of Mourning'
REASON = 'Year-end processing'


def day_in_words(date):
    """"8 September 2027"."""
    return f'{date.day} {date:%B} {date.year}'


class PlanningWalk:
    """What an operator sees on the way. `year` is the next one."""

    def __init__(self, session, accessible, year):
        self.session = session
        self.accessible = accessible
        self.year = year
        self.plans = 'Plans of {} calendars'
        self.together = f'Year planner - {", ".join(TOGETHER)} {year}'
        self.alone = f'Year planner - EUR {year}'

    # Seeing --------------------------------------------------------------------------------------

    def window(self, title):
        return self.accessible.wait_window(title)

    def table(self, title, name):
        return self.accessible.GridReader(self.window(title), name)

    def wait_active(self, title):
        def is_active():
            assert self.session.app.poll() is None, self.session.printed()
            return self.session.active_title() == title
        wait_for(is_active, f'the keyboard in the window "{title}"')

    def wait_said(self, title, part):
        """Until a label or a button of the window says the part; all of that text."""
        def said():
            return next((text for text in self.accessible.showing_texts(self.window(title)) if part in text), None)
        return wait_for(said, f'"{part}" in the window "{title}"')

    def board(self):
        """What the board says of the next year of each currency, without the words of its shapes."""
        board = self.table(BOARD, 'Readiness of the currencies')
        caption = next(caption for caption in board.captions() if caption.startswith(str(self.year)))
        return dict(zip(board.column('Currency'), board.column(caption)))

    def wait_on_board(self, state, *currencies):
        def is_there():
            board = self.board()
            return all((board.get(currency) or '').endswith(state) for currency in currencies)
        wait_for(is_there, f'{currencies} as "{state}" on the board')

    def what_will_happen(self):
        """The lines of the question for an announced holiday: calendar, day, and what happens."""
        table = self.table(CLOSE_DAYS, 'What will happen')
        return list(zip(*(table.column(caption) for caption in ('Calendar', 'Day', 'What happens'))))

    def wait_why(self, part):
        """Until the Calendars window says that of why the current day is what it is; all that it says."""
        pane = self.accessible.control(self.window(CALENDARS), 'text', 'Why the day is what it is')

        def why():
            text = self.accessible.content(pane)
            return text if part in text else None
        return wait_for(why, f'"{part}" in why the day is what it is')

    def changes(self, count):
        """The newest changes in the history, the newest first: who, in which calendar, and what."""
        table = self.table(HISTORY, 'Changes')
        return list(zip(*(table.column(caption, count) for caption in ('Who', 'Calendar', 'What'))))

    def wait_days(self):
        days = self.table(CALENDARS, 'Days')
        wait_for(lambda: days.row_count() in (365, 366) and str(self.year) in (days.text(0, 'Date') or ''),
                 f'the days of {self.year}')


class KeyboardWalk(PlanningWalk):
    """By key presses alone: the mouse is never touched."""

    def start(self, url):
        self.session.start('--database', url)
        self.wait_active(BOARD)

    def look_at_all_plans(self, count):
        self.session.keys('alt+p')
        self.wait_active(self.plans.format(count))

    def apply_plans(self, count):
        self.session.keys('alt+a')
        self.wait_said(self.plans.format(count), 'as planned')
        self.session.keys('Escape')
        self.wait_active(BOARD)

    def open_calendar_of_euro(self):
        self.session.keys('alt+o')
        self.wait_active(CALENDARS)
        self.session.type('EUR')
        # Last year, this year and the next.
        self.session.keys('Right', 'Down', 'Down', 'Down')
        self.wait_days()
        self.session.keys('Tab')

    def open_planner_of_three(self):
        self.session.keys('ctrl+p')
        self.wait_active(self.alone)
        self.session.keys('alt+c', 'ctrl+a')
        self.session.type(' '.join(TOGETHER))
        self.session.keys('Return')
        self.wait_active(self.together)

    def ask_to_close(self, date):
        """For all currencies; types what the holiday is called."""
        self.session.keys('ctrl+Home', *['Next'] * (date.month - 1), *['Right'] * (date.day - 1), *['Up'] * len(TOGETHER))
        self.wait_said(self.together, f'{len(TOGETHER)} days selected, 0 of them closed')
        self.session.keys('ctrl+l')
        self.wait_active(CLOSE_DAYS)
        self.session.type(MOURNING)
        self.wait_said(CLOSE_DAYS, 'A new holiday point')

    def close_days(self):
        self.session.keys('Return')
        self.wait_active(self.together)
        return self.wait_said(self.together, 'closed now')

    def close_planner(self):
        self.session.keys('ctrl+w')
        self.wait_active(CALENDARS)

    def go_to(self, date):
        self.session.keys('ctrl+d')
        self.wait_active('Go to date')
        self.session.type(date.isoformat())
        self.session.keys('Return')
        self.wait_active(CALENDARS)

    def except_day(self, date):
        self.go_to(date)
        self.session.keys('Menu')
        wait_for(self.session.is_menu_open, 'the menu of the day')
        self.session.keys(*['Down'] * 4, 'Return')
        self.wait_active('Except with message')
        self.session.type(REASON)
        self.session.keys('Return')
        self.wait_active(CALENDARS)

    def ask_to_undo(self):
        """What the question says."""
        self.session.keys('ctrl+z')
        self.wait_active('Undo')
        return self.wait_said('Undo', 'Undo in')

    def undo(self):
        self.session.keys('Return')
        self.wait_active(CALENDARS)

    def save_planner(self, path):
        self.session.keys('ctrl+s')
        self.wait_active('Save as PDF')
        self.session.keys('ctrl+a')
        self.session.type(str(path))
        self.session.keys('Return')
        self.wait_active(self.together)
        self.wait_said(self.together, 'Saved as')

    def open_history_of_all(self, count):
        self.session.keys('ctrl+h')
        self.wait_active(HISTORY)
        self.session.keys('alt+c', 'Home')
        wait_for(lambda: self.table(HISTORY, 'Changes').row_count() >= count, f'{count} changes in the history')

    def close_everything(self):
        self.session.keys('ctrl+w')
        self.wait_active(CALENDARS)
        self.session.keys('alt+F4')
        self.wait_active(BOARD)
        self.session.keys('alt+F4')
        return self.session.app.wait(60)
