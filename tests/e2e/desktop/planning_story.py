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
    """"Wednesday 8 September 2027"."""
    return f'{date:%A} {date.day} {date:%B} {date.year}'


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

    # By which a day is excepted.
    EXCEPTS_BY = 'CldIUMain'

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

    def leave(self):
        self.session.keys('ctrl+w')
        self.wait_active(CALENDARS)
        self.session.keys('alt+F4')
        self.wait_active(BOARD)
        self.session.keys('alt+F4')
        assert self.session.app.wait(60) == 0, self.session.printed()


class AccessibleWalk(PlanningWalk):
    """By what an assistive tool can do alone: neither a key nor the mouse is touched."""

    # In the planner, where all tools are on the bar.
    EXCEPTS_BY = 'CldApplyPlan'
    has_planner = False

    def press(self, title, name):
        """The button whose caption begins so, once it can be pressed."""
        def button():
            return next((node for node in self.accessible.controls(self.window(title))
                         if self.accessible.role_name(node) == 'push button' and node.name.startswith(name)
                         and self.accessible.is_enabled(node)), None)
        self.accessible.do(wait_for(button, f'the button "{name}" in the window "{title}"'), 'Press')

    def write(self, title, field, text):
        box = self.accessible.control(self.window(title), 'text', field)
        assert box.queryEditableText().setTextContents(text), f'{field} took no text'
        wait_for(lambda: self.accessible.content(box) == text, f'"{text}" in the field {field}')

    def select_in_tree(self, *names):
        """The row of the first name, and behind it of the next ones."""
        tree = self.accessible.control(self.window(CALENDARS), 'tree', 'Currencies and calendars').queryTable()

        def row():
            texts = [tree.getAccessibleAt(row, 0).name for row in range(tree.nRows)]
            found = -1
            for name in names:
                if name not in texts[found + 1:]:
                    return None
                found = texts.index(name, found + 1)
            return found + 1
        assert tree.addRowSelection(wait_for(row, f'{names} in the tree') - 1)

    def select_in_planner(self, row, date):
        """That day alone, in a row that counts from 0."""
        days = self.accessible.control(self.window(self.together), 'table', 'Year').queryTable()
        self.accessible.do(days.getAccessibleAt(row, date.timetuple().tm_yday - 1), 'SetFocus')

    def start(self, url):
        self.session.start('--database', url)
        self.window(BOARD)

    def look_at_all_plans(self, count):
        self.press(BOARD, 'Prepare all')
        self.window(self.plans.format(count))

    def apply_plans(self, count):
        self.press(self.plans.format(count), 'Apply')
        self.wait_said(self.plans.format(count), 'as planned')
        self.press(self.plans.format(count), 'Close')

    def open_calendar_of_euro(self):
        self.press(BOARD, 'Open calendars')
        self.press(CALENDARS, 'Expand')
        self.select_in_tree('EUR', str(self.year))
        self.wait_days()

    def open_planner_of_three(self):
        """Once it is open, the tool brings it to the front as it is."""
        self.press(CALENDARS, 'Year planner')
        if not self.has_planner:
            self.write(self.alone, 'Currencies', ' '.join(TOGETHER))
            self.press(self.alone, 'Show')
        self.has_planner = True
        self.window(self.together)

    def ask_to_close(self, date):
        row_of_all = 0
        self.select_in_planner(row_of_all, date)
        self.wait_said(self.together, f'{len(TOGETHER)} days selected, 0 of them closed')
        self.press(self.together, 'Close selected days')
        self.write(CLOSE_DAYS, 'Holiday', MOURNING)
        self.wait_said(CLOSE_DAYS, 'A new holiday point')

    def close_days(self):
        self.press(CLOSE_DAYS, 'Close days')
        return self.wait_said(self.together, 'closed now')

    def close_planner(self):
        """The window manager's business, to whoever uses no keys."""

    def go_to(self, date):
        self.press(CALENDARS, 'Go to date')
        self.write('Go to date', 'Date', date.isoformat())
        self.press('Go to date', 'Go')

    def except_day(self, date):
        self.select_in_planner(1 + TOGETHER.index('EUR'), date)
        self.wait_said(self.together, '1 day selected, 1 of them closed')
        self.press(self.together, 'Except days')
        self.write('Except with message', 'Description', REASON)
        self.press('Except with message', 'Except')
        self.wait_said(self.together, '1 day is a working day by exception now')
        self.go_to(date)

    def ask_to_undo(self):
        self.press(CALENDARS, 'Undo')
        return self.wait_said('Undo', 'Undo in')

    def undo(self):
        self.press('Undo', 'Undo')

    def save_planner(self, path):
        self.press(self.together, 'Save as PDF')
        self.write('Save as PDF', 'File name:', str(path))
        self.press('Save as PDF', 'Save')
        self.wait_said(self.together, 'Saved as')

    def open_history_of_all(self, count):
        """A currency as a whole is no calendar, and so the history is that of all."""
        self.select_in_tree('EUR')
        self.press(CALENDARS, 'History')
        wait_for(lambda: self.table(HISTORY, 'Changes').row_count() >= count, f'{count} changes in the history')

    def leave(self):
        assert self.session.app.poll() is None, self.session.printed()
