"""Completion of command lines, asked of the shells as their users do."""

import os
import pathlib
import shutil
import tempfile
import unittest

import command_table
import interactive_shell

DOCUMENTS = pathlib.Path(os.environ["FERROWIND_DOCUMENTS"])


class Completion:
    """What holds for each shell; `SHELL` is its name, `FILE` that of the completion for it."""

    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="completion-"))
        cls.addClassCleanup(shutil.rmtree, folder)
        (folder / "cal endars.db").touch()
        (folder / "list.csv").touch()
        cls.shell = interactive_shell.InteractiveShell(cls.SHELL, DOCUMENTS / cls.FILE, folder)
        cls.addClassCleanup(cls.shell.close)

    def test_every_group_offers_its_commands(self):
        groups = [path for path in command_table.all_paths() if command_table.commands_in(path)]
        self.assertIn("date", groups)
        for path in groups:
            line = f"ferrowindctl {path} ".replace("  ", " ")
            self.assertEqual(sorted(self.shell.offered(line)), sorted(command_table.commands_in(path)), path)

    def test_every_command_offers_its_options(self):
        for path in command_table.all_paths()[1:]:
            line = f"ferrowindctl {path} --"
            offered = {word.removesuffix("=") for word in self.shell.offered(line)}
            # What is typed stands before the first of them.
            offered = {word if word.startswith("--") else f"--{word}" for word in offered}
            expected = {option for option in command_table.options_of(path) if option.startswith("--")}
            self.assertEqual(offered, expected, path)

    def test_a_beginning_is_completed(self):
        self.assertEqual(self.shell.complete("ferrowindctl rev"), "ferrowindctl review ")
        self.assertEqual(self.shell.complete("ferrowindctl date month"), "ferrowindctl date month-end ")
        self.assertEqual(self.shell.complete("ferrowindctl review --hor").rstrip(" ="), "ferrowindctl review --horizon")

    def test_an_option_offers_the_values_that_it_takes(self):
        self.assertEqual(sorted(self.shell.offered("ferrowindctl review --format ")), ["csv", "json", "table"])
        self.assertEqual(sorted(self.shell.offered("ferrowindctl date is --format ")), ["json", "text"])
        self.assertEqual(self.shell.complete("ferrowindctl review --format=js").rstrip(),
                         "ferrowindctl review --format=json")

    def test_the_value_of_an_option_is_no_argument(self):
        self.assertEqual(self.shell.complete("ferrowindctl review --horizon 3 sq"),
                         "ferrowindctl review --horizon 3 sqlite:")

    def test_a_database_is_completed_by_its_kind_and_its_file(self):
        self.assertEqual(self.shell.complete("ferrowindctl check sq"), "ferrowindctl check sqlite:")
        self.assertEqual(self.shell.complete("ferrowindctl check pos"), "ferrowindctl check postgresql://")
        self.assertEqual(self.shell.complete("ferrowindctl check sqlite:cal"),
                         "ferrowindctl check sqlite:cal\\ endars.db ")

    def test_both_databases_of_a_copy_are_completed(self):
        self.assertEqual(self.shell.complete("ferrowindctl copy sq"), "ferrowindctl copy sqlite:")
        self.assertEqual(self.shell.complete("ferrowindctl copy sqlite:a.db sq"),
                         "ferrowindctl copy sqlite:a.db sqlite:")

    def test_a_file_is_completed_where_one_is_asked_for(self):
        self.assertEqual(self.shell.complete("ferrowindctl import sqlite:a.db EUR lis"),
                         "ferrowindctl import sqlite:a.db EUR list.csv ")

    def test_nothing_is_offered_where_nothing_is_known(self):
        self.assertEqual(self.shell.complete("ferrowindctl plan sqlite:a.db lis"), "ferrowindctl plan sqlite:a.db lis")


class BashCompletion(Completion, unittest.TestCase):
    SHELL = "bash"
    FILE = "ferrowindctl"


class ZshCompletion(Completion, unittest.TestCase):
    SHELL = "zsh"
    FILE = "_ferrowindctl"


if __name__ == "__main__":
    unittest.main()
