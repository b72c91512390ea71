"""The programs with pgbouncer in front of the server: what works, and what is said of what does not."""

import signal
import subprocess
import threading
import time

import ferrowindctl
import second_server
import server
from ferrowindctl import CALL_FAILED, DONE, RETURNED_NON_ZERO

MODES = ("session", "transaction")
LOGINS = {"anna": "sesame"}
AT_ONCE = 6


class ThroughAPool(ferrowindctl.InAFolder):

    def setUp(self):
        super().setUp()
        self.database = server.Database(self)
        self.assert_run(DONE, "init", self.database.uri, "--empty")
        self.operator = self.database.login(self, "anna", "sesame", role="ferrowind_operator")

    def pool(self, mode="transaction", **settings):
        return second_server.Pool(self, mode, LOGINS, **settings)

    def test_calls_do_what_they_do_on_the_server(self):
        for number, mode in enumerate(MODES):
            with self.subTest(mode=mode):
                pool = self.pool(mode)
                uri = pool.uri(self.operator)
                create = ("call", uri, "CldIUMain", "ID1=978", f"Year1={2030 + number}")
                self.assert_run(DONE, *create)
                self.assert_run(RETURNED_NON_ZERO, *create)
                self.assert_run(CALL_FAILED, "call", uri, "CldNothing")
                through, direct = [self.assert_run(DONE, "call", url, "CldGetMain", "ID1=978", f"Year1={2030 + number}")[0]
                                   for url in (uri, self.operator)]
                self.assertEqual(through, direct)
                self.assert_run(DONE, "check", pool.uri(self.database.uri))
                self.assert_run(DONE, "copy", pool.uri(self.database.uri), self.url(f"{mode}.db"))

    def test_more_calls_than_it_has_servers_wait_for_each_other_and_are_all_done(self):
        for first, mode in zip((2100, 2200), MODES):
            with self.subTest(mode=mode):
                uri = self.pool(mode).uri(self.operator)
                callers = [threading.Thread(target=ferrowindctl.run,
                                            args=("call", uri, "CldIUMain", "ID1=978", f"Year1={first + number}"))
                           for number in range(AT_ONCE)]
                for caller in callers:
                    caller.start()
                for caller in callers:
                    caller.join()
                self.assertEqual(self.database.rows(f"SELECT count(*) FROM CldCalendar WHERE Year1 BETWEEN {first}"
                                                    f" AND {first + AT_ONCE}"), [(AT_ONCE,)])

    def test_options_in_the_url_are_refused_with_what_to_do(self):
        asked = "?options=-c%20lock_timeout%3D1000"
        _, errors = self.assert_run(CALL_FAILED, "call", self.pool().uri(self.operator) + asked, "CldAllInfo")
        self.assertIn('the pool in front of it passes on no "options"; leave them out of the connection string', errors)
        self.assertIn("ignore_startup_parameters = options", errors)
        heeding = self.pool(ignore_startup_parameters="options")
        self.assert_run(DONE, "call", heeding.uri(self.operator) + asked, "CldAllInfo")

    def test_a_pool_that_is_full_is_asked_twice_and_then_told_of(self):
        pool = self.pool(max_client_conn=1)
        holder = subprocess.Popen(["psql", "-X", "-q", pool.uri(self.operator), "-c", "SELECT pg_sleep(30)"],
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(holder.wait)
        self.addCleanup(holder.terminate)
        second_server.wait_until(
            lambda: server.ask("postgres", "SELECT 1 FROM pg_stat_activity WHERE query LIKE 'SELECT pg_sleep%'") == "1",
            "the only connection")
        _, errors = self.assert_run(CALL_FAILED, "call", pool.uri(self.operator), "CldAllInfo")
        self.assertIn("no more connections allowed", errors)

    def assert_fails_in_time(self, uri):
        begin = time.monotonic()
        _, errors = self.assert_run(CALL_FAILED, "call", f"{uri}?call_timeout=1", "CldAllInfo")
        self.assertLess(time.monotonic() - begin, 8)
        self.assertIn("does not answer", errors)

    def test_a_silent_pool_and_a_silent_server_behind_it_are_not_waited_for(self):
        pool = self.pool()
        uri = pool.uri(self.operator)
        self.assert_run(DONE, "call", uri, "CldAllInfo")
        second_server.stop_primary_silently(self)
        self.assert_fails_in_time(uri)
        second_server.signal_primary(signal.SIGCONT)
        self.assert_run(DONE, "call", uri, "CldAllInfo")
        pool.pause()
        self.assert_fails_in_time(uri)
