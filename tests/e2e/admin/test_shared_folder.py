"""Files in a folder that several users share: what members of its group leave beside a database is used, what others plant is not."""

import contextlib
import os
import pathlib
import shutil
import sqlite3
import subprocess
import tempfile
import unittest

import ferrowindctl
from ferrowindctl import DONE, NOT_DONE

# Accounts that need no entry in the system's list. Without the right to become them, all are whoever runs the test.
ANNA, BEN, STRANGER = 61001, 61002, 61003
GROUP = 62001
IS_SUPERUSER = os.getuid() == 0

def account(user):
    if not IS_SUPERUSER:
        return {}
    return {"user": user, "group": user, "extra_groups": [] if user == STRANGER else [GROUP]}


class SharedFolder(ferrowindctl.InAFolder):

    def setUp(self):
        # Not in TMPDIR, which may be root's alone.
        self.top = pathlib.Path(tempfile.mkdtemp(prefix="ferrowind-shared-", dir="/tmp"))
        self.addCleanup(shutil.rmtree, self.top)
        self.top.chmod(0o755)
        self.program = shutil.copy(ferrowindctl.PROGRAM, self.top)
        self.folder = self.top / "calendars"
        self.folder.mkdir()

    def create(self, *, folder_mode, file_mode):
        if IS_SUPERUSER:
            os.chown(self.folder, -1, GROUP)
        self.folder.chmod(folder_mode)
        self.assert_run(DONE, "init", self.url(), "--empty")
        self.path().chmod(file_mode)

    def run_as(self, user, *arguments):
        result = subprocess.run([self.program, *arguments], capture_output=True, timeout=120, text=True, cwd="/",
                                **(account(user) if user is not None else {}))
        return result.returncode, result.stdout, result.stderr

    @contextlib.contextmanager
    def held_open_by(self, user):
        """While somebody has the database open, so that their files lie beside it."""
        said, say = os.pipe()
        ended, end = os.pipe()
        # A process of this interpreter, which other accounts may not be allowed to start.
        holder = os.fork()
        if holder == 0:
            self.hold_open(user, say, ended, end)
        os.close(say)
        os.close(ended)
        try:
            self.assertEqual(os.read(said, 4), b"open")
            yield
        finally:
            os.close(end)
            os.close(said)
            os.waitpid(holder, 0)

    def hold_open(self, user, say, ended, end):
        try:
            os.close(end)
            if IS_SUPERUSER:
                os.setgroups([GROUP])
                os.setgid(user)
                os.setuid(user)
            database = sqlite3.connect(self.path())
            database.execute("SELECT count(*) FROM CldCalendar").fetchone()
            os.write(say, b"open")
            os.read(ended, 1)
        finally:
            os._exit(0)

    def test_members_of_the_group_and_the_superuser_work_while_another_member_has_the_database_open(self):
        self.create(folder_mode=0o2770, file_mode=0o660)
        with self.held_open_by(ANNA):
            self.assertTrue(self.path("a.db-wal").exists())
            if IS_SUPERUSER:
                self.assertEqual(self.path("a.db-wal").stat().st_uid, ANNA)
            for user in (BEN, ANNA, None):
                with self.subTest(user=user):
                    year = {BEN: 2027, ANNA: 2028, None: 2029}[user]
                    for arguments in (("call", self.url(), "CldIUMain", "ID1=978", f"Year1={year}"), ("check", self.url())):
                        status, _, errors = self.run_as(user, *arguments)
                        self.assertEqual((status, errors), (DONE, ""))

    def test_the_log_of_somebody_who_may_not_write_the_database_is_refused(self):
        self.create(folder_mode=0o1777, file_mode=0o644)
        log = self.path("a.db-wal")
        log.write_bytes(b"")
        self.assertEqual(self.run_as(None, "check", self.url())[0], DONE, "one's own is used")
        if not IS_SUPERUSER:
            return
        log.write_bytes(b"")
        os.chown(log, STRANGER, STRANGER)
        status, output, errors = self.run_as(None, "check", self.url())
        self.assertEqual((status, output), (NOT_DONE, ""))
        self.assertIn(f"beside it {log} belongs to {STRANGER}, who may not write the database", errors)
        self.assertTrue(log.exists())

    def test_a_planted_journal_does_not_make_the_check_delete_a_file(self):
        self.create(folder_mode=0o2770, file_mode=0o660)
        journal = self.path("a.db-journal")
        journal.write_bytes(b"planted")
        status, output, errors = self.run_as(None, "check", self.url())
        self.assertEqual((status, output), (NOT_DONE, ""))
        self.assertIn(f"beside it is a file {journal}, which these programs never leave", errors)
        self.assertEqual(journal.read_bytes(), b"planted")


if __name__ == "__main__":
    unittest.main()
