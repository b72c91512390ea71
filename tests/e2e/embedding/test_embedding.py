"""The guide to embedding, followed word for word by somebody with a new home and a copy of the source tree: each of its
commands as it stands and in order, its example with the guide's own columns, and its other hosts, which are the files of the
tree to the letter. The windows are read as an assistive tool reads them.

The packages that it has root install are those of the tests, too. Of the environment two things are the test's own: a
screen, and the compiler's cache, which changes nothing but the time that it takes."""

import calendar
import contextlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import unittest

import guide
from desktop_session import DesktopSession, Screen, end_process, wait_for

ROOT = pathlib.Path(__file__).parents[3]
PAGE = 'embedding.md'
EXAMPLE = pathlib.Path('docs/examples/minimal_host')
OTHERS = pathlib.Path('docs/examples/hosts')
HOST = 'minimal_host'
OFFICE = 'own_office'
BUILD_SECONDS = 1200
COMPILER_SETTINGS = ('CC', 'CXX', 'CFLAGS', 'CXXFLAGS', 'CPPFLAGS', 'LDFLAGS')
SCREEN = None


def setUpModule():
    global SCREEN
    SCREEN = Screen()


def tearDownModule():
    SCREEN.end()


class Embedding(unittest.TestCase):

    def setUp(self):
        self.session = DesktopSession(SCREEN, HOST)
        self.addCleanup(self.session.end)
        home = self.session.home
        # A name that commands must quote.
        self.tree = home / 'source tree'
        shutil.copytree(ROOT, self.tree, symlinks=True, ignore=self.not_of_the_tree)
        # What a user has set for the compiler of the tests is not for the one of the guide.
        self.environment = {name: value for name, value in self.session.environment.items()
                            if name not in COMPILER_SETTINGS and not name.startswith('CMAKE')}
        self.environment |= {'CMAKE_CXX_COMPILER_LAUNCHER': 'ccache', 'CCACHE_BASEDIR': str(home)}
        # Not before there is a screen, whose bus it is to find.
        import accessible
        self.accessible = accessible

    @staticmethod
    def not_of_the_tree(folder, names):
        return {'build', '.git', '.cache'}.intersection(names) if pathlib.Path(folder) == ROOT else set()

    def start(self, commands):
        process = subprocess.Popen(['bash', '-e', '-o', 'pipefail', '-c', commands], cwd=self.tree, env=self.environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                   start_new_session=True)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)
        end_process(process)
        process.stdout.close()

    def follow(self, block):
        process = self.start(block.commands)
        output = process.communicate(timeout=BUILD_SECONDS)[0]
        self.assertEqual(process.returncode, block.status, f'{block.place}:\n{block.commands}\n{output}')
        if block.expected is not None:
            self.assertTrue(guide.prints(block.expected, output), f'{block.place}:\n{output}')

    def captions_shown_by(self, commands, refused=None):
        """The captions of a calendar's days in the windows that the commands open and that are closed again. Meanwhile the
        calendar of a year that is there already is asked for, which the host tells of as `refused`."""
        process = self.start(commands)
        self.wait_active(process, 'Calendars')
        self.session.type('EUR')
        self.session.keys('Right', 'Down')
        grid = self.accessible.GridReader(self.accessible.application(HOST))
        wait_for(lambda: grid.row_count() == 365, 'the days of a calendar')
        captions = grid.captions()
        self.session.keys('ctrl+n')
        self.wait_active(process, 'Select year EUR currency')
        self.session.type('2026')
        self.session.keys('Return')
        self.wait_active(process, 'Calendars')
        self.session.keys('alt+F4')
        self.wait_active(process, HOST)
        self.session.keys('alt+F4')
        output = process.communicate(timeout=60)[0]
        self.assertEqual(process.returncode, 0, output)
        self.assertEqual(refused in output if refused else 'refused' not in output, True, output)
        return captions

    def office_shows(self, commands):
        """The first week of a calendar that is made in the window of the host with its own surroundings, in the column that it
        computes."""
        process = self.start(commands)
        self.wait_active(process, 'Calendars')
        self.session.type('USD')
        self.session.keys('ctrl+n')
        self.wait_active(process, 'Select year USD currency')
        self.session.keys('Return')
        self.wait_active(process, 'Calendars')
        grid = self.accessible.GridReader(self.accessible.application(OFFICE))
        wait_for(lambda: grid.row_count() in (365, 366), 'the days of the new calendar')
        week = grid.column('Weekday', 7)
        self.session.keys('alt+F4')
        output = process.communicate(timeout=60)[0]
        self.assertEqual(process.returncode, 0, output)
        return week

    def wait_active(self, process, title):
        def is_active():
            self.assertIsNone(process.poll(), 'the host has ended')
            return self.session.active_title() == title
        wait_for(is_active, f'the window "{title}"')

    def put_in(self, columns, observer, surroundings):
        """The page's fragments, each where it belongs."""
        source = self.tree / EXAMPLE / 'main.cpp'
        text = source.read_text()
        for pattern, code in ((r'.*SetCaption.*\n', columns), (r'(?=int main\()', observer + '\n'),
                              (r'.*Platform platform\{\n.*\n', surroundings)):
            text, count = re.subn(pattern, lambda _, code=code: code, text)
            self.assertEqual(count, 1, pattern)
        source.write_text(text)

    def test_every_block_does_what_the_guide_says(self):
        blocks = [block for block in guide.blocks(PAGE) if block.person != 'root']
        [starting] = [block for block in blocks if f'build/{HOST}/{HOST} ' in block.commands]
        [building] = [block for block in blocks if f'--build build/{HOST}' in block.commands]
        [others] = [block for block in blocks if f'build/hosts/{OFFICE} ' in block.commands]
        programs = [text for text in guide.code(PAGE, 'cpp') if 'int main(' in text]
        fragments = [text for text in guide.code(PAGE, 'cpp') if 'int main(' not in text]
        before_start, open_host = starting.commands.rstrip('\n').rsplit('\n', 1)
        self.assertEqual(guide.code(PAGE, 'cmake'), [(self.tree / EXAMPLE / 'CMakeLists.txt').read_text()])
        for block in blocks[:blocks.index(starting)]:
            self.follow(block)

        self.follow(guide.Block(PAGE, starting.line, starting.person, before_start, 0, None))
        captions = self.captions_shown_by(open_host)
        self.assertIn('Remark', captions)
        self.assertNotIn('Rule number', captions)

        self.put_in(*fragments)
        self.follow(building)
        captions = self.captions_shown_by(open_host, refused='A change was refused: 6')
        self.assertIn('Remark', captions)
        self.assertIn('Rule number', captions)

        self.assertEqual(sorted(programs), sorted(path.read_text() for path in (self.tree / OTHERS).glob('*.cpp')))
        before_start, open_office = others.commands.rstrip('\n').rsplit('\n', 1)
        self.follow(guide.Block(PAGE, others.line, others.person, before_start, 0, None))
        self.assertEqual(sorted(self.office_shows(open_office)), sorted(calendar.day_name))
        self.assertIn('gridLayout', (self.session.home / 'office.ini').read_text())
        for block in blocks[blocks.index(others) + 1:]:
            self.follow(block)


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
