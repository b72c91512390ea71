"""The built desktop program on calendar databases that are damaged in ways that nobody foresaw: it starts, says what it cannot
read or shows it, answers its windows, and leaves the file as it is. FERROWIND_EVERY_FAULT in the environment damages more of
them."""

import os
import random
import subprocess
import sys
import unittest

from desktop_session import DesktopSession, Screen, wait_for

SEED = 20261122
PAGE = 4096
FILES = 60 if 'FERROWIND_EVERY_FAULT' in os.environ else 5
SCREEN = None


def setUpModule():
    global SCREEN
    SCREEN = Screen()


def tearDownModule():
    SCREEN.end()


def damaged(sound, chance):
    """The bytes of a sound file after something has happened to it, and what that was."""
    kind = chance.choice(('bits', 'pages', 'end'))
    content = bytearray(sound)
    if kind == 'bits':
        for _ in range(chance.randint(1, 200)):
            content[chance.randrange(len(content))] ^= 1 << chance.randrange(8)
    elif kind == 'pages':
        pages = len(content) // PAGE
        to, source = chance.randrange(pages) * PAGE, chance.randrange(pages) * PAGE
        content[to:to + PAGE] = sound[source:source + PAGE]
    else:
        del content[chance.randrange(1, len(content)):]
    return bytes(content), kind


class DamagedFiles(unittest.TestCase):

    def setUp(self):
        self.session = DesktopSession(SCREEN, os.environ['FERROWIND_PROGRAM'])
        self.addCleanup(self.session.end)
        import accessible
        self.accessible = accessible
        self.session.database.parent.mkdir(parents=True)
        self.url = f'sqlite:{self.session.database}'
        self.assertTrue(self.is_done('init', self.url, '--empty'))
        for year in (2026, 2027):
            self.assertTrue(self.is_done('call', self.url, 'CldIUMain', 'ID1=978', f'Year1={year}'))
        self.sound = self.session.database.read_bytes()

    @staticmethod
    def is_done(*command):
        return subprocess.run([os.environ['FERROWINDCTL_PROGRAM'], *command], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False).returncode == 0

    def test_are_told_of_or_shown_and_stay_as_they_are(self):
        chance = random.Random(SEED)
        self.start_on(self.sound)
        self.assertEqual(self.told(), [])
        self.session.stop()
        troubles = 0
        for number in range(FILES):
            content, kind = damaged(self.sound, chance)
            with self.subTest(number=number, kind=kind):
                self.start_on(content)
                told = self.told()
                troubles += bool(told)
                self.assertIsNone(self.session.app.poll(), self.session.printed())
                self.session.stop()
                self.assertNotIn('Sanitizer', self.session.printed())
                self.assertEqual(self.session.database.read_bytes(), content)
                if not told:
                    for call in (('CldAllInfo',), ('CldGetContent',)):
                        self.assertTrue(self.is_done('call', self.url, *call), 'what cannot be read was told')
        self.assertGreater(troubles, 0)

    def start_on(self, content):
        for file in self.session.database.parent.iterdir():
            file.unlink()
        self.session.database.write_bytes(content)
        self.session.start('--open')

    def told(self):
        """What the program says of troubles, once it has opened the calendars or said that it cannot. Messages are answered,
        which a program that hangs would not notice."""
        told = []

        def is_started():
            self.assertIsNone(self.session.app.poll(), self.session.printed())
            if self.session.windows('Ferrowind'):
                told.append('a message')
                self.session.activate_if_open('Ferrowind')
                self.session.keys('Return')
                return False
            return self.session.windows('Back office') and (told or self.session.windows('Calendars'))
        wait_for(is_started, 'the start')
        if not self.session.windows('Calendars'):
            return told
        for title in ('Back office', 'Calendars'):
            texts = self.accessible.showing_texts(self.accessible.wait_window(title))
            told += [text for text in texts if 'did not do what was asked' in text or 'could not be read' in text]
        return told


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v', *sys.argv[1:]])
