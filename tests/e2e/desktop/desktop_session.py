"""A screen of its own with the built desktop program on it, driven from outside by keyboard and mouse.

Needs Xvfb, openbox, xdotool, xprop, ImageMagick's import, a session bus with the accessibility services, and Debian's own
python3 with pyatspi. Everything that is started here ends with the screen or the session.
"""

import contextlib
import os
import pathlib
import resource
import shutil
import signal
import sqlite3
import subprocess
import tempfile
import time

WAIT_SECONDS = int(os.environ.get("E2E_WAIT_SECONDS", "60"))
SCREEN = '1500x950x24'


class Timeout(AssertionError):
    """What was waited for did not come."""


def wait_for(condition, what, seconds=WAIT_SECONDS):
    """The first truthy value of condition(), asked again and again."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Timeout(f'{what} did not come within {seconds} seconds')
        time.sleep(0.05)


class Screen:
    """A display with a window manager, and the session bus with its accessibility services. One a process: the
    accessibility library of this process stays with the first bus that it met."""

    def __init__(self, frames=(), data_home=None):
        """`frames` are options of the window manager, which draws the frames; its themes are in `data_home`."""
        self.processes = []
        self.runtime = pathlib.Path(tempfile.mkdtemp(prefix='ferrowind-screen-'))
        self.environment = {
            **os.environ,
            'XDG_RUNTIME_DIR': str(self.runtime),
            'QT_QPA_PLATFORM': 'xcb',
            'QT_LINUX_ACCESSIBILITY_ALWAYS_ON': '1',
            'LC_ALL': 'C.UTF-8',
        }
        if data_home is not None:
            self.environment['XDG_DATA_HOME'] = str(data_home)
        try:
            display = self._first_line(
                ['Xvfb', '-displayfd', '{fd}', '-screen', '0', SCREEN, '-nolisten', 'tcp', '-noreset'])
            self.environment['DISPLAY'] = ':' + display
            address = self._first_line(['dbus-daemon', '--session', '--nofork', '--print-address={fd}'])
            self.environment['DBUS_SESSION_BUS_ADDRESS'] = address
            self._service('/usr/libexec/at-spi-bus-launcher', '--launch-immediately')
            self._service('openbox', '--sm-disable', *frames)
            # For pyatspi, which lives in this process.
            for name in ('DISPLAY', 'XDG_RUNTIME_DIR', 'DBUS_SESSION_BUS_ADDRESS'):
                os.environ[name] = self.environment[name]
            wait_for(lambda: 'window id' in self.property_of(None, '_NET_SUPPORTING_WM_CHECK'), 'the window manager')
        except BaseException:
            self.end()
            raise

    def end(self):
        for process in reversed(self.processes):
            end_process(process)
        shutil.rmtree(self.runtime, ignore_errors=True)

    def _service(self, *command):
        self.processes.append(subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))

    def _first_line(self, command):
        """Starts a service and returns the line that it writes to the descriptor {fd} once it is ready."""
        read_end, write_end = os.pipe()
        self.processes.append(subprocess.Popen([part.format(fd=write_end) for part in command], pass_fds=[write_end],
                                               env=self.environment, stderr=subprocess.DEVNULL))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            line = pipe.readline().strip()
        if not line:
            raise Timeout(f'{command[0]} did not start')
        return line

    def property_of(self, window, name):
        """The property as xprop prints it; the root window is None."""
        which = ['-root'] if window is None else ['-id', window]
        return subprocess.run(['xprop', *which, name], env=self.environment, capture_output=True, text=True,
                              check=False).stdout

    def screenshot(self, path):
        path = pathlib.Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(['import', '-window', 'root', str(path)], env=self.environment, check=True)


def rows_of(database, sql, *values):
    """What the tables of the database file hold at this moment."""
    with contextlib.closing(sqlite3.connect(f'file:{database}?mode=ro', uri=True)) as connection:
        return connection.execute(sql, values).fetchall()


def end_process(process):
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


class DesktopSession:
    """A user with an empty home on the screen; `start` starts the program, several times if wanted."""

    def __init__(self, screen, program):
        self.screen = screen
        self.program = pathlib.Path(program)
        self.home = pathlib.Path(tempfile.mkdtemp(prefix='ferrowind-home-'))
        self.environment = {
            **screen.environment,
            'HOME': str(self.home),
            'XDG_DATA_HOME': str(self.home / 'data'),
            'XDG_CONFIG_HOME': str(self.home / 'config'),
        }
        self.app = None

    def end(self):
        if self.app is not None:
            end_process(self.app)
        shutil.rmtree(self.home, ignore_errors=True)

    # The program ---------------------------------------------------------------------------------

    @property
    def database(self):
        return self.home / 'data' / 'Tessaro' / 'ferrowind' / 'calendars.sqlite'

    def start(self, *arguments, largest_file=None):
        """With `largest_file` no file can grow beyond so many bytes, as if the disk were full."""
        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (largest_file, largest_file))
        self.output = self.home / 'output.txt'
        with self.output.open('ab') as output:
            self.app = subprocess.Popen([self.program, *map(str, arguments)], env=self.environment,
                                        preexec_fn=None if largest_file is None else limit,
                                        restore_signals=largest_file is None,
                                        stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT)
        return self.app

    def stop(self):
        """Ends the program as a session manager would, and returns its exit status."""
        if self.app.poll() is None:
            self.app.send_signal(signal.SIGTERM)
        return self.app.wait(WAIT_SECONDS)

    def printed(self):
        return self.output.read_text(errors='replace')

    # Windows, keyboard and mouse -----------------------------------------------------------------

    def xdotool(self, *arguments):
        return subprocess.run(['xdotool', *map(str, arguments)], env=self.environment, capture_output=True, text=True,
                              check=False).stdout.split()

    def windows(self, title):
        """The program's visible windows of that title."""
        return self.xdotool('search', '--all', '--onlyvisible', '--pid', self.app.pid, '--name', f'^{title}$')

    def window(self, title):
        """The visible window of that title, waited for."""
        def find():
            if self.app.poll() is not None:
                raise AssertionError(f'the program ended with {self.app.returncode}:\n{self.printed()}')
            return self.windows(title)
        return wait_for(find, f'the window "{title}"')[-1]

    def active_title(self):
        """The title of the window that has the keyboard, empty without one."""
        return ' '.join(self.xdotool('getactivewindow', 'getwindowname'))

    def is_menu_open(self):
        """Whether a menu or a drop-down list is on the screen, which no window manager manages."""
        windows = self.xdotool('search', '--all', '--onlyvisible', '--pid', self.app.pid,
                               '--class', self.program.name)
        return any('not found' in self.screen.property_of(window, 'WM_STATE') for window in windows)

    def wait_until_gone(self, title):
        wait_for(lambda: not self.windows(title), f'the end of the window "{title}"')

    def focus(self, title):
        window = self.window(title)
        self.xdotool('windowactivate', '--sync', window)
        return window

    def activate_if_open(self, title):
        """As `focus`, for a window that may be closing."""
        for window in self.windows(title):
            self.xdotool('windowactivate', window)

    def keys(self, *keys):
        for key in keys:
            self.xdotool('key', '--clearmodifiers', key)
            time.sleep(0.03)

    def type(self, text):
        self.xdotool('type', '--clearmodifiers', '--delay', '15', text)

    def click_at(self, x, y, button=1):
        self.xdotool('mousemove', '--sync', x, y, 'click', button)

    def drag(self, from_place, to_place):
        """Presses the left button, moves it in steps as a hand does, and lets go."""
        self.xdotool('mousemove', '--sync', *from_place, 'mousedown', 1)
        for step in range(1, 9):
            x, y = (start + (end - start) * step // 8 for start, end in zip(from_place, to_place))
            self.xdotool('mousemove', '--sync', x, y)
        self.xdotool('mouseup', 1)

    def close(self, title):
        """Asks the window to close, as its frame does."""
        self.focus(title)
        self.keys('alt+F4')
