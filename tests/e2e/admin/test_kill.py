"""kill -9 in the middle of writing calls: each call is in the database wholly or not at all, and none that ended is lost."""

import os
import random
import shutil
import signal
import subprocess
import time
import unittest

import ferrowindctl
from ferrowindctl import DONE

KILLS = 60
# More than any machine writes before it is killed.
YEARS = range(2100, 3001)
EURO = 978
SATURDAY, SUNDAY = 2, 3

# Each year in three calls, and a letter for each call that has ended.
WRITING_LOOP = f"""
for year in $(seq {YEARS[0]} {YEARS[-1]}); do
  for rule in "" "TID1=2 ID2={SATURDAY}" "TID1=2 ID2={SUNDAY}"; do
    "$FERROWINDCTL" call "$1" CldIUMain ID1={EURO} Year1=$year $rule >/dev/null || exit
    printf .
  done
done
"""


# More history than is copied in a few seconds.
LONG_HISTORY = """
INSERT INTO CldHistory (Moment, UserName, ProcedureName, Parameters, ReturnValue, RowsChanged, ChainPosition, Previous, Hash)
WITH RECURSIVE N (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < 500000)
SELECT '2026-01-01T00:00:00.000Z', 'anna', 'CldIUMain', '{}', 0, n, 1000 + n, '', '' FROM N;
"""


class Stop(ferrowindctl.WithADeliveredDatabase):

    def test_a_long_copy_ends_at_the_first_signal(self):
        database = self.open_from_outside()
        database.executescript(LONG_HISTORY)
        database.close()
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number):
                copy = subprocess.Popen([ferrowindctl.PROGRAM, "copy", self.url(), self.url("copy.db")],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
                time.sleep(2)
                self.assertIsNone(copy.poll(), "it reads on")
                copy.send_signal(number)
                _, errors = copy.communicate(timeout=30)
                self.assertEqual((copy.returncode, errors.decode()), (-number, "ferrowindctl: Stopped; nothing was changed\n"))
                self.assertFalse(self.path("copy.db").exists())


class Kill(ferrowindctl.WithADeliveredDatabase):

    def effects(self):
        """How many calls of the loop are in the database; a call that is there in part fails the test."""
        database = self.open_from_outside()
        count = 0
        for year in YEARS:
            if not database.execute("SELECT 1 FROM CldCalendar WHERE ID1 = ? AND Year1 = ?", (EURO, year)).fetchone():
                break
            count += 1
            for weekday, rule in (("6", SATURDAY), ("0", SUNDAY)):
                rules = [row[0] for row in database.execute(
                    "SELECT DISTINCT ID2 FROM CldDay WHERE ID1 = ? AND Year1 = ? AND strftime('%w', ODate) = ?",
                    (EURO, year, weekday))]
                self.assertIn(rules, ([None], [rule]), f"part of a call in {year}")
                count += rules == [rule]
        database.close()
        return count

    def test_leaves_every_call_wholly_or_not_at_all(self):
        moments = random.Random(20260101)
        for attempt in range(KILLS):
            for leftover in self.folder.iterdir():
                leftover.unlink()
            shutil.copy2(self.original, self.path())
            loop = subprocess.Popen(["sh", "-c", WRITING_LOOP, "loop", self.url()],
                                    stdout=subprocess.PIPE, start_new_session=True)
            time.sleep(moments.uniform(0, 0.3))
            self.assertIsNone(loop.poll(), "the loop ended before it was killed")
            os.killpg(loop.pid, signal.SIGKILL)
            ended_calls = len(loop.communicate()[0])
            with self.subTest(attempt=attempt):
                self.assert_run(DONE, "check", self.url())
                self.assertIn(self.effects(), (ended_calls, ended_calls + 1))


if __name__ == "__main__":
    unittest.main()
