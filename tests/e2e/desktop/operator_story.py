"""How an operator prepares the euro's calendar of the next year on a delivered database, as the user's guide tells it. By
key presses alone: the mouse is never touched."""

from desktop_session import wait_for

CALENDARS = 'Calendars'
RULES = 'Assign groups holidays for calendar - EUR 2028'
PREVIEW = 'Assign these rules?'

# The delivered database has the calendars of this year and the next.
FIRST_YEAR = '2026'
# The euro's rules that hold for every year, in the order of the list.
YEARLY_RULES = ('Saturday', 'Sunday', "New Year's Day", 'Labour Day (1 May)', 'Christmas Day', "St Stephen's Day")
# The other ones of the year before: their dates are those of one year.
OLD_POINTS = ('Good Friday', 'Easter Monday')
# Name, what the operator types for the day and month, and comment.
NEW_POINTS = (('Good Friday 2028', '14 April', 'Friday before Easter Sunday'),
              ('Easter Monday 2028', '17 April', 'Monday after Easter Sunday'))
# A point of a past year, of another currency.
PAST_POINT = 'Whit Monday'
MESSAGE = 'Year-end processing'
NEW_COMMENT = 'Bank holiday'

# The columns of the days that the operator goes to, and tools of the day menu by how often Down is pressed; the separator
# is passed over.
HOLIDAY_NAME_COLUMN = 2
ASSIGN_MANY, EXCEPT_WITH_MESSAGE = 2, 4


class OperatorStory:
    """Each chapter leaves the windows as the next one needs them. `picture(name)` is called with what a reader should
    see on the screen at that moment."""

    def __init__(self, session, accessible, picture=lambda name: None):
        self.session = session
        self.accessible = accessible
        self.picture = picture

    def tell(self, url, rule_count, arrange=lambda: None):
        """All chapters, on the delivered calendar database of that URL with so many rules beside the built-in one;
        `arrange()` may place the window before the first chapter."""
        self.open(url)
        arrange()
        self.look_at_the_year_before()
        self.create_calendar()
        self.assign_yearly_rules(rule_count)
        self.write_points()
        self.assign_points()
        self.except_day_with_message()
        self.remove_rule(rule_count + len(NEW_POINTS))
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
        # Below the days stands another table.
        name = 'Days' if title == CALENDARS else None
        return self.accessible.GridReader(self.accessible.wait_window(title), name)

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

    def look_at_the_year_before(self):
        """Returns the names of the rules that its days have."""
        self.session.type('EUR')
        self.session.keys('Right', 'Down', 'Down')
        self.wait_rows(CALENDARS, 365)
        self.session.keys('Tab')
        self.wait_in_grid(CALENDARS, 'Date', '1 Jan 2027 Fri')
        self.session.keys('Home', *['Right'] * HOLIDAY_NAME_COLUMN)
        self.choose_in_column_menu('g')
        self.choose_in_column_menu('o')
        # The working days are a group, too.
        wait_for(lambda: self.grid(CALENDARS).row_count() == len(YEARLY_RULES + OLD_POINTS) + 1, 'the groups alone')
        grid = self.grid(CALENDARS)
        groups = [grid.text(row, 'Date') for row in range(grid.row_count())]
        self.picture('year-before')
        self.choose_in_column_menu('u')
        self.wait_rows(CALENDARS, 365)
        self.session.keys('shift+Tab')
        return groups

    def choose_in_column_menu(self, access_key):
        self.session.keys('alt+Down')
        wait_for(self.session.is_menu_open, 'the menu of the column')
        self.session.keys(access_key)
        wait_for(lambda: not self.session.is_menu_open(), 'the end of the menu')

    def create_calendar(self):
        self.session.keys('ctrl+n')
        self.wait_active('Select year EUR currency')
        self.session.keys('alt+r')
        self.session.type('2028')
        self.picture('new-calendar')
        self.session.keys('Return')
        self.decline_preparation()
        self.wait_active(CALENDARS)
        self.wait_rows(CALENDARS, 366)

    def decline_preparation(self):
        """This operator assigns the rules alone."""
        self.wait_active('New calendar')
        self.picture('prepare-it')
        self.session.keys('alt+n')

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

    def assign_yearly_rules(self, rule_count):
        self.session.keys('Tab')
        self.wait_in_grid(CALENDARS, 'Date', '1 Jan 2028 Sat')
        self.open_rules()
        self.wait_rows(RULES, len(YEARLY_RULES + OLD_POINTS))
        self.list_all_rules(rule_count)
        self.session.keys('ctrl+l')
        self.wait_rows(RULES, len(YEARLY_RULES + OLD_POINTS))
        self.select_rules(YEARLY_RULES)
        self.picture('rules')
        self.assign(picture='preview')

    def list_all_rules(self, rule_count):
        """Those of other currencies as well."""
        self.session.keys('ctrl+l')
        self.wait_rows(RULES, rule_count)

    def write_points(self):
        self.open_rules()
        for name, date, comment in NEW_POINTS:
            self.add_point(name, date, comment)

    def assign_points(self):
        self.select_rules([name for name, _, _ in NEW_POINTS])
        self.assign()
        self.go_to_day('17 Apr 2028 Mon')
        self.picture('assigned')

    def add_point(self, name, when, comment):
        rows = self.grid(RULES).row_count()
        self.session.keys('alt+a')
        self.wait_active('Add holiday')
        # The last one of the types.
        self.session.keys('End', 'Tab')
        self.session.type(name)
        self.session.keys('Tab')
        self.session.type(when)
        self.session.keys('Tab')
        self.session.type(comment)
        self.picture('new-point')
        self.session.keys('Return')
        self.wait_active(RULES)
        self.wait_rows(RULES, rows + 1)

    def select_rules(self, names):
        """Rules that stand in this order in the list, maybe with others between them, and no others."""
        self.go_to_rule(names[0])
        grid = self.grid(RULES)
        names_in_list = [grid.text(row, 'Name') for row in range(grid.row_count())]
        rows = [names_in_list.index(name) for name in names]
        for last, row in zip(rows, rows[1:]):
            self.session.keys(*['ctrl+Down'] * (row - last), 'ctrl+space')

        def are_selected():
            grid = self.grid(RULES)
            return [grid.text(row, 'Name') for row in sorted(grid.selected_rows())] == list(names)
        wait_for(are_selected, f'the selected rules {names}')

    def assign(self, picture=None):
        self.session.keys('alt+i')
        self.wait_active(PREVIEW)
        if picture:
            self.picture(picture)
        # Where there is something to look at, Enter does not go past it.
        self.session.keys('alt+a')
        self.wait_active(CALENDARS)
        self.wait_in_grid(CALENDARS, 'Date', '1 Jan 2028 Sat')

    def except_day_with_message(self):
        self.go_to_day('23 Dec 2028 Sat')
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

    def remove_rule(self, rows):
        self.open_rules()
        self.list_all_rules(rows)
        self.go_to_rule(PAST_POINT)
        self.session.keys('alt+r')
        self.wait_active('Remove holiday')
        self.picture('remove')
        self.session.keys('Return')
        self.wait_active(RULES)
        self.wait_rows(RULES, rows - 1)

    def restore_rule(self):
        """Removed rules are shown for it."""
        rows = self.grid(RULES).row_count()
        self.session.keys('alt+h')
        self.wait_rows(RULES, rows + 1)
        self.go_to_rule(PAST_POINT)
        self.picture('removed')
        self.session.keys('alt+s', 'alt+h')
        self.wait_rows(RULES, rows + 1)

    def go_to_rule(self, name):
        """Finds the rule by typing its name in the column of names."""
        self.session.keys('Home', 'ctrl+Home')
        self.session.type(name)
        self.wait_in_grid(RULES, 'Name', name)

    def edit_comment(self):
        self.go_to_rule('Labour Day (1 May)')
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
        """The calendar that was on show last comes back."""
        self.open(url)
        self.wait_rows(CALENDARS, 366)
