"""A server fails in the middle of the work, and its synchronous standby takes over: no change that was told of as done is lost."""

import signal
import threading
import time

import ferrowindctl
import second_server
import server
from ferrowindctl import CALL_FAILED, DONE

FIRST_YEAR = 2100
ACKNOWLEDGED_BEFORE = 8
ACKNOWLEDGED_AFTER = 5


class Failover(ferrowindctl.InAFolder):

    def setUp(self):
        super().setUp()
        self.database = server.Database(self)
        self.assert_run(DONE, "init", self.database.uri, "--empty")
        self.operator = self.database.login(self, "anna", "sesame", role="ferrowind_operator")
        self.standby = second_server.Standby(self)
        self.acknowledged = []
        self.failures = []

    def keep_writing(self, uri, is_enough):
        """Creates calendars of one year after the other; one whose call fails is left, as its operator does who waits."""
        year = FIRST_YEAR
        while not is_enough():
            result = ferrowindctl.run("call", uri, "CldIUMain", "ID1=978", f"Year1={year}")
            if result.returncode == DONE:
                self.acknowledged.append(year)
            else:
                self.failures.append(result.stderr.decode())
            year += 1

    def write_through_a_takeover(self, fail):
        """Calls go on all the while; `fail` ends the first server."""
        uri = f"{self.standby.uri(self.operator)}&call_timeout=2"
        wanted = [None]
        writer = threading.Thread(target=self.keep_writing,
                                  args=(uri, lambda: wanted[0] is not None and len(self.acknowledged) >= wanted[0]))
        writer.start()
        try:
            second_server.wait_until(lambda: len(self.acknowledged) >= ACKNOWLEDGED_BEFORE, "the first changes")
            fail()
            self.standby.promote()
            before = len(self.acknowledged)
            second_server.wait_until(lambda: len(self.acknowledged) >= before + ACKNOWLEDGED_AFTER,
                                     "changes behind the takeover")
        finally:
            wanted[0] = 0
            writer.join()
        superuser = self.standby.uri_alone(self.database.uri)
        self.assert_run(DONE, "check", superuser)
        self.assert_run(DONE, "status", superuser)
        for year in self.acknowledged:
            rows, _ = self.assert_run(DONE, "call", self.standby.uri_alone(self.operator), "CldGetMain", "ID1=978",
                                      f"Year1={year}", "--format", "csv")
            self.assertGreater(len(rows.splitlines()), 365, f"{year} is lost")
        for failure in self.failures:
            self.assertRegex(failure, "does not answer|was interrupted|was disconnected|cannot be connected to|not confirmed|"
                             "being stopped")
            self.assertNotIn("sesame", failure)

    def test_of_a_server_that_is_killed_loses_nothing_that_was_told_of_as_done(self):
        self.addCleanup(server.control, "start")
        self.write_through_a_takeover(lambda: server.control("stop"))

    def test_of_a_server_that_falls_silent_loses_nothing_and_the_old_one_confirms_nothing(self):
        self.write_through_a_takeover(lambda: second_server.stop_primary_silently(self))
        # The old server is back, and nobody has told it that it is not the one any more.
        second_server.signal_primary(signal.SIGCONT)
        begin = time.monotonic()
        _, errors = self.assert_run(CALL_FAILED, "call", f"{self.operator}?call_timeout=2", "CldIUMain", "ID1=840",
                                    "Year1=2100")
        self.assertLess(time.monotonic() - begin, 10)
        self.assertIn("stored on this server, not confirmed by its standby", errors)
