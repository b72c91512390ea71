"""Commands of administrators on a server that falls silent: they end when they are told to, or when they cannot connect."""

import contextlib
import os
import pathlib
import signal
import subprocess
import time

import ferrowindctl
import second_server
import server
import version_1
from ferrowindctl import DONE, NOT_DONE

SLACK = 6


class OnASilentServer(ferrowindctl.InAFolder):

    def setUp(self):
        super().setUp()
        self.database = server.Database(self)
        self.assert_run(DONE, "init", self.database.uri, "--empty")

    def test_commands_that_cannot_connect_fail_in_the_time_of_a_call(self):
        second_server.stop_primary_silently(self)
        for seconds, command in ((1, ("check",)), (1, ("status",)), (1, ("upgrade",)), (1, ("init",)), (3, ("history",)),
                                 (3, ("review",)), (3, ("plan", "EUR", "2026")), (3, ("apply", "EUR", "2026", "--yes"))):
            with self.subTest(command=command):
                begin = time.monotonic()
                _, errors = self.assert_run(NOT_DONE, command[0], f"{self.database.uri}?call_timeout={seconds}", *command[1:])
                # Twice the time would be that of a second try.
                self.assertLess(time.monotonic() - begin, 5.8)
                self.assertIn("does not answer", errors)

    def test_works_that_wait_for_it_end_at_the_first_signal(self):
        empty = server.Database(self)
        old = version_1.make_on_server(self)
        for locked, command in ((Lock(self, self.database, "ferrowind.CldDay", "ACCESS EXCLUSIVE"),
                                 ("copy", self.database.uri, self.url())),
                                (Lock(self, empty, "pg_catalog.pg_namespace", "SHARE"), ("init", empty.uri)),
                                (Lock(self, old, "ferrowind.CldDay", "ACCESS EXCLUSIVE"), ("upgrade", old.uri))):
            with self.subTest(command=command[0]):
                work = self.start(*command)
                second_server.wait_until(locked.is_waited_for, "the waiting work")
                with second_server.silent_primary():
                    self.assert_ends_at(signal.SIGTERM, work)
        self.assertFalse(self.path().exists())
        self.assert_run(NOT_DONE, "status", empty.uri)
        self.assertEqual(old.ask("SELECT Version FROM ferrowind.SchemaVersion"), "1")

    def test_commands_that_connect_end_at_the_first_signal(self):
        uri = f"{self.database.uri}?call_timeout=100"
        with second_server.silent_primary():
            for command in (("init", uri), ("upgrade", uri), ("copy", uri, self.url())):
                with self.subTest(command=command[0]):
                    work = self.start(*command)
                    # It takes signals as soon as it works, and the connecting is the first of that.
                    second_server.wait_until(lambda work=work: self.has_connection(work), "the connecting")
                    self.assert_ends_at(signal.SIGINT, work)

    def start(self, *command):
        work = subprocess.Popen([ferrowindctl.PROGRAM, *command], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        for close in (work.stdout.close, work.stderr.close, work.wait, work.kill):
            self.addCleanup(close)
        return work

    @staticmethod
    def has_connection(work):
        def is_socket(file):
            with contextlib.suppress(FileNotFoundError):
                return os.readlink(file).startswith("socket:")
            return False
        return any(is_socket(file) for file in pathlib.Path(f"/proc/{work.pid}/fd").iterdir())

    def assert_ends_at(self, number, work):
        begin = time.monotonic()
        work.send_signal(number)
        _, errors = work.communicate(timeout=60)
        self.assertLess(time.monotonic() - begin, SLACK)
        self.assertEqual(work.returncode, -number)
        self.assertIn(b"Stopped; nothing was changed", errors)


class Lock:
    """A lock of a table that somebody holds until the end of a test."""

    def __init__(self, test, database, table, mode):
        self.database = database
        holder = subprocess.Popen(["psql", "-X", "-q", database.uri], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True)
        for end in (holder.wait, holder.terminate, holder.stdin.close):
            test.addCleanup(end)
        holder.stdin.write(f"BEGIN; LOCK TABLE {table} IN {mode} MODE;\n")
        holder.stdin.flush()
        held = f"SELECT count(*) FROM pg_locks WHERE granted AND relation = '{table}'::regclass" \
               f" AND mode = '{mode.title().replace(' ', '')}Lock'"
        second_server.wait_until(lambda: database.ask(held) == "1", "the lock")

    def is_waited_for(self):
        return self.database.ask("SELECT count(*) FROM pg_stat_activity WHERE wait_event_type = 'Lock'"
                                 " AND datname = current_database()") != "0"
