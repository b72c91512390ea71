"""Sessions that a program keeps between its calls while 16 operators work in it: no change that was told of as done is lost, and none
fails that need not, whatever becomes of the server or the pool."""

import os
import subprocess
import threading

import ferrowindctl
import second_server
import server
from ferrowindctl import DONE

FIRST_YEAR = 2001
OPERATORS = 16
# What a call says that the end of its server met, or that came while there was none.
MEETS_THE_END = "does not answer|was interrupted|was disconnected|cannot be connected to|not confirmed|being stopped"
# No call of a loaded machine takes longer.
PATIENTLY = "call_timeout=60"


class Operators:
    """At work on the database of the URI until the end of a test, or `stop`."""

    def __init__(self, test, uri, first_year=FIRST_YEAR):
        self.done = []
        self.failures = []
        self._process = subprocess.Popen([os.environ["WORKING_OPERATORS"], uri, str(first_year)], stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE, text=True)
        self._reader = threading.Thread(target=self._read)
        self._reader.start()
        test.addCleanup(self.stop)

    def _read(self):
        for line in self._process.stdout:
            word, rest = line.rstrip("\n").split(" ", 1)
            if word == "done":
                self.done.append(int(rest))
            else:
                self.failures.append(rest)

    def wait_for(self, more):
        wanted = len(self.done) + more
        second_server.wait_until(lambda: len(self.done) >= wanted, f"{more} more changes")

    def stop(self):
        if not self._process.stdin.closed:
            self._process.stdin.close()
            self._reader.join()
            self._process.wait()
            self._process.stdout.close()


class KeptSessions(ferrowindctl.InAFolder):

    def setUp(self):
        super().setUp()
        self.database = server.Database(self)
        self.assert_run(DONE, "init", self.database.uri, "--empty")
        self.operator = self.database.login(self, "anna", "sesame", role="ferrowind_operator")

    def assert_keeps(self, done, superuser):
        """All that was told of as done, and the database is sound."""
        years = {year for year, in self.rows(superuser, "SELECT Year1 FROM ferrowind.CldCalendar WHERE ID1 = 978")}
        self.assertEqual([year for year in done if year not in years], [])
        self.assert_run(DONE, "check", superuser)

    @staticmethod
    def rows(uri, query):
        answer = subprocess.run(["psql", "-X", "-q", "-A", "-t", uri, "-c", query], check=True, capture_output=True, text=True)
        return [(int(line),) for line in answer.stdout.splitlines()]

    def work_through_a_takeover(self, fail, timeout):
        standby = second_server.Standby(self)
        operators = Operators(self, f"{standby.uri(self.operator)}&{timeout}")
        operators.wait_for(2 * OPERATORS)
        fail()
        standby.promote()
        operators.wait_for(2 * OPERATORS)
        operators.stop()
        for failure in operators.failures:
            self.assertRegex(failure, f"{MEETS_THE_END}|took longer than a call may")
        self.assert_keeps(operators.done, standby.uri_alone(self.database.uri))

    def kill_primary(self):
        server.control("stop")
        self.addCleanup(server.control, "start")

    def test_lose_nothing_when_the_standby_of_a_killed_server_takes_over(self):
        self.work_through_a_takeover(self.kill_primary, PATIENTLY)

    def test_lose_nothing_when_the_standby_of_a_silent_server_takes_over(self):
        self.work_through_a_takeover(lambda: second_server.stop_primary_silently(self), "call_timeout=4")

    def test_at_a_pool_work_in_each_of_its_modes(self):
        for number, mode in enumerate(("session", "transaction")):
            with self.subTest(mode=mode):
                pool = second_server.Pool(self, mode, {"anna": "sesame"}, default_pool_size=OPERATORS)
                operators = Operators(self, f"{pool.uri(self.operator)}?keep_sessions=yes&{PATIENTLY}", FIRST_YEAR + 300 * number)
                operators.wait_for(2 * OPERATORS)
                self.assertEqual(operators.failures, [])
                server.ask("postgres", "SELECT count(pg_terminate_backend(pid)) FROM pg_stat_activity WHERE usename = 'anna'")
                operators.wait_for(2 * OPERATORS)
                operators.stop()
                for failure in operators.failures:
                    self.assertRegex(failure, MEETS_THE_END)
                # A cut can meet each operator once.
                self.assertLessEqual(len(operators.failures), OPERATORS)
                self.assert_keeps(operators.done, self.database.uri)

    def test_are_not_kept_at_a_pool_that_has_less_servers_than_there_are_operators(self):
        pool = second_server.Pool(self, "session", {"anna": "sesame"}, default_pool_size=2)
        operators = Operators(self, f"{pool.uri(self.operator)}?{PATIENTLY}")
        operators.wait_for(3 * OPERATORS)
        operators.stop()
        self.assertEqual(operators.failures, [])
        self.assert_keeps(operators.done, self.database.uri)
