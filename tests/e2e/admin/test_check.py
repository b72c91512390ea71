"""ferrowindctl check: every kind of fault is listed."""

import unittest

import ferrowindctl
from ferrowindctl import DONE, NOT_DONE


class Check(ferrowindctl.WithADeliveredDatabase):

    def faults_after(self, *statements):
        """The lines that the check prints once the statements have damaged the database."""
        database = self.open_from_outside()
        database.execute("PRAGMA foreign_keys = OFF")
        database.execute("PRAGMA ignore_check_constraints = ON")
        for statement in statements:
            database.execute(statement)
        database.close()
        output, _ = self.assert_run(NOT_DONE, "check", self.url())
        return output

    def test_says_that_a_sound_database_is_in_order(self):
        output, _ = self.assert_run(DONE, "check", self.url())
        self.assertEqual(output.splitlines()[-1], "The database is in order.")

    def test_warns_of_calendars_that_are_missing_or_have_no_weekends_without_finding_a_fault(self):
        year, *later = ferrowindctl.years_to_prepare()
        self.assert_run(DONE, "init", self.url("past.db"), "--year", "2015")
        self.assert_run(DONE, "call", self.url("past.db"), "CldIUMain", "ID1=978", f"Year1={year}")
        lines = self.assert_run(DONE, "check", self.url("past.db"))[0].splitlines()
        self.assertEqual(len(lines), 3 + len(later))
        self.assertRegex(lines[0], rf"\AWarning: There is no calendar of {year} for AUD, BRL, .*, ZAR\.\Z")
        self.assertNotIn("EUR", lines[0])
        self.assertEqual(lines[1], f"Warning: No weekend is closed in the calendar of {year} for EUR.")
        for line, missing in zip(lines[2:-1], later):
            self.assertRegex(line, rf"\AWarning: There is no calendar of {missing} for .*, EUR, .*\.\Z")

    def test_of_a_new_database_warns_of_years_that_must_be_prepared_by_now_alone(self):
        self.assert_run(DONE, "init", self.url("new.db"))
        *warnings, verdict = self.assert_run(DONE, "check", self.url("new.db"))[0].splitlines()
        self.assertEqual(verdict, "The database is in order.")
        to_prepare = ferrowindctl.years_to_prepare()[2:]
        self.assertEqual([line.split(" for ")[0] for line in warnings],
                         [f"Warning: There is no calendar of {year}" for year in to_prepare])

    def test_changes_nothing(self):
        before = self.path().read_bytes()
        self.assert_run(DONE, "check", self.url())
        self.assertEqual(self.path().read_bytes(), before)
        self.assertEqual(len(list(self.folder.iterdir())), 1)

    def test_lists_a_calendar_that_lacks_a_day(self):
        faults = self.faults_after("DELETE FROM CldDay WHERE ID1 = 978 AND Year1 = 2026 AND Day1 = 100")
        self.assertIn("978", faults)
        self.assertIn("2026", faults)

    def test_names_the_rows_whose_texts_are_too_long_to_be_read(self):
        too_long = 17 * 1024 * 1024
        faults = self.faults_after(f"UPDATE CldHoliday SET Comment = printf('%{too_long}s', '') WHERE ID2 = 1",
                                   f"UPDATE CldDay SET Comment = printf('%{too_long}s', '') "
                                   "WHERE ID1 = 978 AND Day1 IN (5, 7)")
        self.assertIn("The row ID2 1 of the table CldHoliday has a text that is too long to be read\n", faults)
        for day in (5, 7):
            self.assertRegex(faults, rf"The row ID1 978, Year1 \d{{4}}, Day1 {day} of the table CldDay has a text that is too long")
        self.assertNotIn("Day1 6", faults)

    def test_lists_a_day_whose_rule_does_not_exist(self):
        faults = self.faults_after(
            "UPDATE CldDay SET ID2 = 4711 WHERE ID1 = 978 AND Year1 = 2026 AND ODate = '2026-12-25'")
        self.assertIn("4711", faults)

    def test_lists_a_missing_procedure(self):
        faults = self.faults_after("DELETE FROM ProcedureParameter WHERE ProcedureName = 'CldGetMain'",
                                   "DELETE FROM ProcedureCatalogue WHERE Name = 'CldGetMain'")
        self.assertIn("CldGetMain", faults)

    def test_lists_a_missing_parameter(self):
        faults = self.faults_after(
            "DELETE FROM ProcedureParameter WHERE ProcedureName = 'CldIUMain' AND Name = '@ODate'")
        self.assertIn("CldIUMain", faults)

    def test_lists_a_trigger_of_a_name_that_only_sqlite_gives(self):
        faults = self.faults_after(
            "PRAGMA writable_schema = ON",
            "INSERT INTO sqlite_schema VALUES ('trigger', 'sqlite_stat_x', 'CldHistory', 0,"
            " 'CREATE TRIGGER sqlite_stat_x AFTER INSERT ON CldHistory BEGIN SELECT 1; END')")
        self.assertEqual(faults, "The trigger sqlite_stat_x does not belong to the schema\n")

    def test_lists_every_fault(self):
        faults = self.faults_after(
            "DELETE FROM CldDay WHERE ID1 = 978 AND Year1 = 2026 AND Day1 = 100",
            "DELETE FROM CldDay WHERE ID1 = 840 AND Year1 = 2027 AND Day1 = 365")
        self.assertIn("978", faults)
        self.assertIn("840", faults)

    def test_refuses_another_version_of_the_schema(self):
        database = self.open_from_outside()
        version = database.execute("PRAGMA user_version").fetchone()[0]
        database.execute(f"PRAGMA user_version = {version + 1}")
        database.close()
        result = ferrowindctl.run("check", self.url())
        self.assertEqual(result.returncode, NOT_DONE)
        self.assertIn(b"version", result.stdout + result.stderr)


class CheckOfNoDatabase(ferrowindctl.InAFolder):

    def assert_unreadable(self):
        result = ferrowindctl.run("check", self.url())
        self.assertEqual(result.returncode, NOT_DONE)
        self.assertIn(b"a.db", result.stdout + result.stderr)

    def test_names_a_missing_file_and_makes_none(self):
        self.assert_unreadable()
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_names_a_folder(self):
        self.path().mkdir()
        self.assert_unreadable()

    def test_names_a_file_that_is_no_database(self):
        self.path().write_text("no database\n" * 1000)
        self.assert_unreadable()

    def test_names_an_empty_file(self):
        self.path().touch()
        result = ferrowindctl.run("check", self.url())
        self.assertEqual(result.returncode, NOT_DONE)

    def test_names_a_database_of_something_else(self):
        self.open_from_outside().execute("CREATE TABLE Other (x)")
        result = ferrowindctl.run("check", self.url())
        self.assertEqual(result.returncode, NOT_DONE)


class CheckOfADamagedDatabase(ferrowindctl.WithADeliveredDatabase):

    def test_finds_a_truncated_file(self):
        content = self.path().read_bytes()
        self.path().write_bytes(content[:len(content) // 2])
        self.assertEqual(ferrowindctl.run("check", self.url()).returncode, NOT_DONE)

    def test_finds_overwritten_pages(self):
        content = bytearray(self.path().read_bytes())
        for page in range(8192, len(content), 8192):
            content[page:page + 200] = b"\xa5" * 200
        self.path().write_bytes(content)
        self.assertEqual(ferrowindctl.run("check", self.url()).returncode, NOT_DONE)


if __name__ == "__main__":
    unittest.main()
