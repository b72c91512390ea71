"""ferrowindctl init, check and call on a server: what they do on a file, they do there."""

import json
import subprocess
import time
import unittest

import ferrowindctl
import server
from ferrowindctl import CALL_FAILED, DONE, NOT_DONE, RETURNED_NON_ZERO

KILL_ATTEMPTS = 8
FIRST_DAY = ("ID1=978", "Year1=2026", "TID1=1", "ID2=1", "Day1=1", "ODate=2026-01-01")


class Init(ferrowindctl.WithADeliveredDatabase):

    def setUp(self):
        super().setUp()
        self.database = server.Database(self)

    def test_makes_the_database_that_it_makes_in_a_file(self):
        self.assert_run(DONE, "init", self.database.uri, "--year", ferrowindctl.FIRST_YEAR)
        self.assert_run(DONE, "check", self.database.uri)
        for call in (("CldAllInfo",), ("CldGetMain", "ID1=978", "Year1=2026"), ("CldGetMain", "ID1=392", "Year1=2027")):
            for form in ("json", "csv", "table"):
                with self.subTest(call=call, form=form):
                    on_server, in_file = [self.assert_run(DONE, "call", url, *call, "--format", form)[0]
                                          for url in (self.database.uri, self.url())]
                    self.assertEqual(on_server, in_file)

    def test_leaves_rules_and_calendars_out_of_an_empty_database(self):
        self.assert_run(DONE, "init", self.database.uri, "--empty")
        self.assert_run(DONE, "check", self.database.uri)
        self.assertEqual(self.database.rows("SELECT ID2, Name1 FROM CldHoliday"), [(1, "Working day by exception")])
        self.assertEqual(self.database.rows("SELECT (SELECT count(*) FROM CldCalendar) AS calendars,"
                                            " (SELECT count(*) FROM DicCcy) AS currencies"), [(0, 184)])

    def test_leaves_a_database_with_something_in_it_as_it_is(self):
        self.assert_run(DONE, "init", self.database.uri, "--empty")
        self.assertIn(self.database.name, self.assert_run(NOT_DONE, "init", self.database.uri)[1])
        self.assertEqual(self.database.ask("SELECT count(*) FROM ferrowind.CldCalendar"), "0")
        other = server.Database(self)
        other.ask("CREATE TABLE orders (a integer)")
        self.assertIn("orders", self.assert_run(NOT_DONE, "init", other.uri)[1])
        self.assertTrue(other.is_vacant())

    def test_names_a_database_that_does_not_exist_and_makes_none(self):
        self.assertIn("nowhere", self.assert_run(NOT_DONE, "init", server.uri("nowhere"))[1])
        self.assertEqual(server.ask("postgres", "SELECT count(*) FROM pg_database WHERE datname = 'nowhere'"), "0")

    def test_without_the_rights_is_refused_and_leaves_nothing(self):
        url = self.database.login(self, "clerk", "sesame")
        _, errors = self.assert_run(NOT_DONE, "init", url)
        self.assertIn("does not permit", errors)
        self.assertNotIn("sesame", errors)
        self.assertTrue(self.database.is_vacant())

    def test_killed_at_any_moment_leaves_a_whole_database_or_none(self):
        start = time.monotonic()
        self.assert_run(DONE, "init", self.database.uri, "--year", ferrowindctl.FIRST_YEAR)
        duration = time.monotonic() - start
        killed = 0
        for attempt in range(KILL_ATTEMPTS):
            database = server.Database(self)
            process = subprocess.Popen([ferrowindctl.PROGRAM, "init", database.uri], stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL)
            time.sleep(duration * (attempt + 1) / KILL_ATTEMPTS)
            process.kill()
            killed += process.wait() != DONE
            database.wait_until_unused()
            if not database.is_vacant():
                self.assert_run(DONE, "check", database.uri)
        self.assertGreater(killed, 0)


class ClosedStreams(ferrowindctl.InAFolder):

    def test_leave_their_places_to_no_connection(self):
        database = server.Database(self)
        self.assert_run(DONE, "init", database.uri, "--empty")
        for command, closed, expected in (("status", ">&-", "ferrowindctl: cannot write the output; all the rest is done\n"),
                                          ("call", ">&-", "ferrowindctl: cannot write the output; all the rest is done\n"),
                                          ("call", "<&- >&- 2>&-", "")):
            with self.subTest(command=command, closed=closed):
                procedure = "CldAllInfo" if command == "call" else ""
                result = subprocess.run(["bash", "-c", f'"$0" {command} "$1" {procedure} {closed}', ferrowindctl.PROGRAM, database.uri],
                                        stderr=subprocess.PIPE, timeout=120)
                self.assertEqual((result.returncode, result.stderr.decode()), (NOT_DONE, expected))
        # What a calendar's calls tell on standard error stays out of the connection, too.
        result = subprocess.run(["bash", "-c", '"$0" seal "$1" 2>&-', ferrowindctl.PROGRAM, database.uri],
                                stdout=subprocess.PIPE, timeout=120)
        self.assertEqual(result.returncode, DONE)
        self.assertRegex(result.stdout.decode(), r"\A[0-9A-Z-]+\n\Z")


class Check(ferrowindctl.InAFolder):

    def setUp(self):
        super().setUp()
        self.database = server.Database(self)
        self.assert_run(DONE, "init", self.database.uri, "--year", ferrowindctl.FIRST_YEAR)

    def faults_after(self, *statements):
        """The lines that the check prints once the statements of a superuser have damaged the database."""
        self.database.ask("SET search_path = ferrowind; SET session_replication_role = replica; "
                          + "; ".join(statements))
        return self.assert_run(NOT_DONE, "check", self.database.uri)[0].splitlines()

    def test_says_that_a_sound_database_is_in_order(self):
        self.assertEqual(self.assert_run(DONE, "check", self.database.uri)[0].splitlines()[-1], "The database is in order.")

    def test_lists_every_fault_of_the_content(self):
        faults = self.faults_after("DELETE FROM CldDay WHERE ID1 = 978 AND Year1 = 2026 AND Day1 = 100",
                                   "UPDATE CldDay SET ID2 = 4711 WHERE ID1 = 840 AND Year1 = 2027 AND Day1 = 359")
        self.assertTrue(any("978" in fault and "2026" in fault for fault in faults), faults)
        self.assertTrue(any("4711" in fault for fault in faults), faults)

    def test_lists_a_missing_and_a_changed_procedure(self):
        faults = self.faults_after("DROP PROCEDURE CldGetMain", "ALTER PROCEDURE CldIUMain SECURITY INVOKER")
        self.assertTrue(any("cldgetmain" in fault.lower() for fault in faults), faults)
        self.assertTrue(any("cldiumain" in fault.lower() for fault in faults), faults)

    def test_lists_a_right_too_many(self):
        faults = self.faults_after("GRANT SELECT ON CldDay TO ferrowind_operator")
        self.assertEqual(faults, ["The table cldday is not this program's: right of ferrowind_operator is SELECT instead of none"])

    def test_lists_what_reaches_into_the_schema_from_outside_and_how_to_undo_it(self):
        faults = self.faults_after("CREATE RULE swallow AS ON INSERT TO CldHistory DO INSTEAD NOTHING",
                                   f"GRANT TEMPORARY ON DATABASE {self.database.name} TO PUBLIC")
        self.assertEqual(faults, [
            "The rule cldhistory.swallow does not belong to the schema",
            "PUBLIC has the right TEMPORARY on the database; take it:"
            f" REVOKE TEMPORARY ON DATABASE {self.database.name} FROM PUBLIC"])
        self.database.ask(faults[1].split(": ")[1] + "; DROP RULE swallow ON ferrowind.CldHistory")
        self.assert_run(DONE, "check", self.database.uri)

    def test_tells_an_operator_who_may_check(self):
        operator = self.database.login(self, "anna", "sesame", role="ferrowind_operator")
        _, errors = self.assert_run(NOT_DONE, "check", operator)
        self.assertIn("is administered by members of ferrowind_owner, and anna is none", errors)

    def test_refuses_another_version_of_the_schema(self):
        self.database.ask("UPDATE ferrowind.SchemaVersion SET Version = Version + 1")
        result = ferrowindctl.run("check", self.database.uri)
        self.assertEqual(result.returncode, NOT_DONE)
        self.assertIn(b"version", result.stdout + result.stderr)

    def test_names_a_database_that_is_no_calendar_database(self):
        vacant = server.Database(self)
        _, errors = self.assert_run(NOT_DONE, "check", vacant.uri)
        self.assertIn(f"{vacant.name} at 127.0.0.1", errors)
        self.assertIn("is no calendar database", errors)


class Call(ferrowindctl.InAFolder):
    """As an operator, who has no right but an operator's."""

    def setUp(self):
        super().setUp()
        self.database = server.Database(self)
        self.assert_run(DONE, "init", self.database.uri, "--year", ferrowindctl.FIRST_YEAR)
        self.operator = self.database.login(self, "anna", "sesame", role="ferrowind_operator")

    def operators_call(self, expected, *arguments):
        output, errors = self.assert_run(expected, "call", self.operator, *arguments, "--format", "json")
        self.assertNotIn("sesame", output + errors)
        return output, errors

    def test_creates_a_calendar_once(self):
        self.operators_call(DONE, "CldIUMain", "ID1=978", "Year1=2028")
        output, _ = self.operators_call(RETURNED_NON_ZERO, "CldIUMain", "ID1=978", "Year1=2028")
        self.assertEqual(json.loads(output), {"return": 6, "results": []})
        self.assertEqual(self.database.rows("SELECT count(*) FROM CldDay WHERE ID1 = 978 AND Year1 = 2028"), [(366,)])

    def test_a_text_is_stored_exactly_as_given_and_no_value_is_none(self):
        text = "O'Neil; DROP TABLE CldDay; -- \"祝日\" \\n %s $1 =1\n\tΩ🎌"
        for argument, stored in ((f"Comment={text}", text), ("Comment=", ""), ("Comment", None)):
            self.operators_call(DONE, "CldIUMain", *FIRST_DAY, argument)
            self.assertEqual(self.database.rows("SELECT Comment FROM CldDay WHERE ID1 = 978 AND ODate = '2026-01-01'"),
                             [(stored,)])

    def test_a_wrong_value_is_an_error_that_names_it_and_calls_nothing(self):
        self.assertIn("Yeer", self.operators_call(NOT_DONE, "CldIUMain", "ID1=978", "Yeer=2030")[1])
        self.assertIn("2026-02-30", self.operators_call(NOT_DONE, "CldIUMain", *FIRST_DAY[:5], "ODate=2026-02-30")[1])
        self.assertEqual(self.database.rows("SELECT count(*) FROM CldHistory WHERE UserName = 'anna'"), [(0,)])

    def test_a_failure_is_told_with_its_number_and_text(self):
        output, errors = self.operators_call(CALL_FAILED, "CldNothing")
        self.assertEqual(json.loads(output), {"return": -1, "results": []})
        self.assertRegex(errors, r"failure -?\d+: .*CldNothing")

    def test_fails_on_a_stopped_server_and_works_again_on_a_started_one(self):
        server.control("stop")
        try:
            _, errors = self.operators_call(CALL_FAILED, "CldIUMain", "ID1=978", "Year1=2028")
        finally:
            server.control("start")
        self.assertIn("cannot be connected to", errors)
        self.operators_call(DONE, "CldIUMain", "ID1=978", "Year1=2028")

    def test_fails_with_a_wrong_password_that_is_not_told(self):
        _, errors = self.assert_run(CALL_FAILED, "call", self.database.uri_of("anna", "open-barley"), "CldAllInfo")
        self.assertIn("password authentication failed", errors)
        self.assertNotIn("open-barley", errors)

    def test_fails_without_an_operators_rights(self):
        stranger = self.database.login(self, "stranger", "sesame")
        self.assertIn("CONNECT", self.assert_run(CALL_FAILED, "call", stranger, "CldAllInfo")[1])


if __name__ == "__main__":
    unittest.main()
