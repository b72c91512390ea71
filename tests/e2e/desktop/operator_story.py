"""An operator's first day with the windows, told by key presses alone: the mouse is never touched."""

from desktop_session import wait_for

CALENDARS = 'Calendars'
RULES = 'Assign groups holidays for calendar'

# Name, comment, and what the operator types for the weekday.
WEEKDAY_RULES = (('Saturday', 'Weekend', 'Saturday'), ('Sunday', 'Weekend', 'Sunday'))
# Name, comment, and what the operator types for the day and month.
DATE_RULES = (("New Year's Day", 'First day of the year', '1 January'),
              ('Independence Day', 'Declared in 1776', '4 July'),
              ('Christmas Day', 'Bank holiday', '25 December'))
RULE_COUNT = len(WEEKDAY_RULES) + len(DATE_RULES)
MESSAGE = 'Year-end processing'
NEW_COMMENT = 'Federal holiday'

# The tools of the day menu, by how often Down is pressed; the separator is passed over.
ASSIGN_MANY, EXCEPT_WITH_MESSAGE = 2, 4


class OperatorStory:
    """Each chapter leaves the windows as the next one needs them. `picture(name)` is called with what a reader should
    see on the screen at that moment."""

    def __init__(self, session, accessible, picture=lambda name: None):
        self.session = session
        self.accessible = accessible
        self.picture = picture

    def tell(self, url, arrange=lambda: None):
        """All chapters, on the empty calendar database of that URL; `arrange()` may place the window before the first
        one."""
        self.open(url)
        arrange()
        self.create_calendar()
        self.add_rules()
        self.assign_all_rules()
        self.except_day_with_message()
        self.remove_rule()
        self.restore_rule()
        self.edit_comment()

    # What the operator waits for -----------------------------------------------------------------

    def wait_active(self, title):
        """Until the window of that title has the keyboard, which the program must give it by itself."""
        def is_active():
            assert self.session.app.poll() is None, self.session.printed()
            return self.session.active_title() == title
        wait_for(is_active, f'the keyboard in the window "{title}"')

    def grid(self, title):
        return self.accessible.GridReader(self.accessible.wait_window(title))

    def wait_rows(self, title, count):
        wait_for(lambda: self.grid(title).row_count() == count, f'{count} rows in "{title}"')

    def wait_in_grid(self, title, caption, text):
        """Until the grid has the keyboard, on a row with that text in that column."""
        def is_there():
            grid = self.grid(title)
            return grid.has_focus() and [grid.text(row, caption) for row in grid.selected_rows()] == [text]
        wait_for(is_there, f'the row "{text}" in "{title}"')

    # Chapters ------------------------------------------------------------------------------------

    def open(self, url):
        self.session.start('--open', '--database', url)
        self.wait_active(CALENDARS)

    def create_calendar(self):
        self.session.type('USD')
        self.session.keys('ctrl+n')
        self.wait_active('Select year USD currency')
        self.session.keys('alt+r')
        self.session.type('2028')
        self.picture('new-calendar')
        self.session.keys('Return')
        self.wait_active(CALENDARS)
        self.wait_rows(CALENDARS, 366)

    def open_rules(self):
        """For the whole calendar."""
        self.choose_in_day_menu(ASSIGN_MANY)
        self.wait_active(RULES)

    def choose_in_day_menu(self, place, opened_by='Menu'):
        self.session.keys(opened_by)
        wait_for(self.session.is_menu_open, 'the menu of the day')
        self.session.keys(*['Down'] * place)
        self.picture('day-menu')
        self.session.keys('Return')

    def add_rules(self):
        self.session.keys('Tab')
        self.wait_in_grid(CALENDARS, 'Date', '1 Jan 2028')
        self.open_rules()
        for name, comment, weekday in WEEKDAY_RULES:
            self.add_rule('Holiday', name, weekday, comment)
        for name, comment, date in DATE_RULES:
            self.add_rule('Celebration', name, date, comment)

    def add_rule(self, holiday_type, name, when, comment):
        rows = self.grid(RULES).row_count()
        self.session.keys('alt+a')
        self.wait_active('Add holiday')
        self.session.type(holiday_type)
        self.session.keys('Tab')
        self.session.type(name)
        self.session.keys('Tab')
        self.session.type(when)
        self.session.keys('Tab')
        self.session.type(comment)
        if name == 'Independence Day':
            self.picture('new-rule')
        self.session.keys('Return')
        self.wait_active(RULES)
        self.wait_rows(RULES, rows + 1)

    def assign_all_rules(self):
        self.session.keys('ctrl+a')
        wait_for(lambda: len(self.grid(RULES).selected_rows()) == RULE_COUNT, 'every rule selected')
        self.picture('rules')
        self.session.keys('alt+i')
        self.wait_active(CALENDARS)
        self.wait_in_grid(CALENDARS, 'Date', '1 Jan 2028')
        self.picture('assigned')

    def except_day_with_message(self):
        self.go_to_day('23 Dec 2028')
        self.choose_in_day_menu(EXCEPT_WITH_MESSAGE, opened_by='shift+F10')
        self.wait_active('Except with message')
        self.session.type(MESSAGE)
        self.picture('except-message')
        self.session.keys('Return')
        self.wait_active(CALENDARS)
        self.wait_in_grid(CALENDARS, 'Comment', MESSAGE)
        self.picture('excepted')

    def go_to_day(self, date):
        """Finds the day by typing its date in the column of dates."""
        self.session.keys('Home')
        self.session.type(date)
        self.wait_in_grid(CALENDARS, 'Date', date)

    def remove_rule(self):
        self.open_rules()
        self.go_to_rule('Independence Day')
        self.session.keys('alt+r')
        self.wait_active('Remove holiday')
        self.picture('remove')
        self.session.keys('Return')
        self.wait_active(RULES)
        self.wait_rows(RULES, RULE_COUNT - 1)

    def restore_rule(self):
        """Removed rules are shown for it."""
        self.session.keys('alt+h')
        self.wait_rows(RULES, RULE_COUNT)
        self.go_to_rule('Independence Day')
        self.picture('removed')
        self.session.keys('alt+s', 'alt+h')
        self.wait_rows(RULES, RULE_COUNT)

    def go_to_rule(self, name):
        self.session.keys('Home', 'ctrl+Home')
        self.session.type(name)
        self.wait_in_grid(RULES, 'Name', name)

    def edit_comment(self):
        self.go_to_rule('Christmas Day')
        self.session.keys('alt+e')
        self.wait_active('Edit holiday')
        self.session.keys('alt+c', 'ctrl+a')
        self.session.type(NEW_COMMENT)
        self.picture('edit-rule')
        self.session.keys('Return')
        self.wait_active(RULES)
        self.wait_in_grid(RULES, 'Comment', NEW_COMMENT)
        self.close_rules()

    def close_rules(self):
        self.session.keys('alt+F4')
        self.wait_active(CALENDARS)

    def close_everything(self):
        """The calendars, and then the host; returns the program's exit status."""
        self.session.keys('alt+F4')
        self.wait_active('Back office')
        self.session.keys('alt+F4')
        return self.session.app.wait(60)

    def reopen(self, url):
        self.open(url)
        self.session.type('USD')
        self.session.keys('Right', 'Down')
        self.wait_rows(CALENDARS, 366)
