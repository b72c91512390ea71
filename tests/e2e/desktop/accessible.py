"""Reads the windows as an assistive tool does."""

import warnings

from desktop_session import wait_for

# The bindings call deprecated functions of their own library.
warnings.filterwarnings('ignore', category=DeprecationWarning, module='pyatspi')
with warnings.catch_warnings():
    warnings.simplefilter('ignore')
    import pyatspi


def _quietly(function, default=None):
    # An accessible object may go away between two questions.
    try:
        return function()
    except Exception:  # pylint: disable=broad-except
        return default


def application(name='ferrowind'):
    def find():
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(_quietly(lambda: desktop.childCount, 0)):
            app = _quietly(lambda i=i: desktop.getChildAtIndex(i))
            if app is not None and _quietly(lambda app=app: app.name) == name:
                return app
        return None
    return wait_for(find, f'the accessible application {name}')


def descendants(node, goes_into=lambda node: True):
    yield node
    if not goes_into(node):
        return
    for i in range(_quietly(lambda: node.childCount, 0)):
        child = _quietly(lambda i=i: node.getChildAtIndex(i))
        if child is not None:
            yield from descendants(child, goes_into)


def role_name(node):
    """As releases of AT-SPI before 2.53 name the role; later ones call a push button a button."""
    name = _quietly(node.getRoleName)
    return 'push button' if name == 'button' else name


def find(root, role, name=None):
    """The first object of that role name and, where given, accessible name; None without one."""
    for node in descendants(root):
        if role_name(node) == role and (name is None or _quietly(lambda node=node: node.name) == name):
            return node
    return None


def wait_find(root, role, name=None):
    return wait_for(lambda: find(root, role, name), f'the {role} {name or ""}')


def has_state(node, state):
    return _quietly(lambda: node.getState().contains(state), False)


def is_showing(node):
    return has_state(node, pyatspi.STATE_SHOWING)


def is_expandable(node):
    return has_state(node, pyatspi.STATE_EXPANDABLE)


def is_expanded(node):
    return has_state(node, pyatspi.STATE_EXPANDED)


def is_enabled(node):
    return has_state(node, pyatspi.STATE_ENABLED)


def wait_window(title):
    """The accessible window of that title; its role is a frame or a dialog."""
    def find_window():
        app = application()
        for i in range(_quietly(lambda: app.childCount, 0)):
            window = _quietly(lambda i=i: app.getChildAtIndex(i))
            if window is not None and _quietly(lambda window=window: window.name) == title:
                return window
        return None
    return wait_for(find_window, f'the accessible window "{title}"')


class GridReader:
    """The cells of the grid in a window, as an assistive tool reads them: by row and column, both from 0. Where a window
    has several, the one of that accessible name."""

    def __init__(self, window, name=None):
        self.table = wait_find(window, 'table', name)
        self.cells = wait_for(lambda: _quietly(self.table.queryTable), 'the cells of the table')

    def row_count(self):
        return _quietly(lambda: self.cells.nRows, 0)

    def captions(self):
        return [_quietly(lambda c=c: self.cells.getColumnHeader(c).name, '') for c in range(self.cells.nColumns)]

    def cell(self, row, column):
        return self.cells.getAccessibleAt(row, column)

    def text(self, row, caption):
        return _quietly(lambda: self.cell(row, self.captions().index(caption)).name)

    def column(self, caption, rows=None):
        """The texts of a column, of all rows or of the first ones."""
        column = self.captions().index(caption)
        return [_quietly(lambda row=row: self.cell(row, column).name)
                for row in range(self.row_count() if rows is None else rows)]

    def texts(self, row):
        """The texts of a row by the captions of their columns."""
        return {caption: _quietly(lambda column=column: self.cell(row, column).name)
                for column, caption in enumerate(self.captions())}

    def selected_rows(self):
        return list(_quietly(self.cells.getSelectedRows, []))

    def has_focus(self):
        """Whether a cell of the selected row has the keyboard."""
        return any(has_state(self.cell(row, column), pyatspi.STATE_FOCUSED)
                   for row in self.selected_rows() for column in range(self.cells.nColumns))


def controls(window):
    """The objects of the window but for the cells of its tables, of which there may be thousands."""
    return descendants(window, lambda node: role_name(node) not in ('table', 'tree', 'tree table'))


def showing_texts(window):
    """What the window says on its labels and buttons, as far as it shows them."""
    return [node.name for node in controls(window)
            if role_name(node) in ('label', 'push button') and is_showing(node)]


def control(window, role, name):
    """The first object of that role name and accessible name outside of tables, waited for."""
    def found():
        return next((node for node in controls(window)
                     if role_name(node) == role and _quietly(lambda node=node: node.name) == name), None)
    return wait_for(found, f'the {role} {name}')


def content(node):
    """The text of a text field or text view."""
    return _quietly(lambda: node.queryText().getText(0, -1), '')


def do(node, action):
    """Has the object do its action of that name, as a person who uses no keys does. An action that opens a dialog answers
    when that is closed again, so nothing waits for the answer."""
    actions = node.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    _quietly(lambda: actions.doAction(names.index(action)))
