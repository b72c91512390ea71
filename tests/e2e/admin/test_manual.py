"""The manual page: that the programs which show it have nothing to say against it, and that help says no more than it."""

import os
import pathlib
import re
import subprocess
import unittest

import command_table

PAGE = pathlib.Path(os.environ["FERROWIND_DOCUMENTS"]) / "ferrowindctl.1"


def words(text):
    return " ".join(text.split())


def shown():
    """The page as a wide terminal shows it, without bold type."""
    result = subprocess.run(["man", "--local-file", str(PAGE)], capture_output=True, text=True, timeout=60, check=True,
                            env=os.environ | {"MANWIDTH": "100", "MAN_KEEP_FORMATTING": "", "LC_ALL": "C.UTF-8"})
    return re.sub(r".\x08", "", result.stdout)


class ManualPage(unittest.TestCase):

    def assert_silent(self, *command):
        result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, timeout=60,
                                env=os.environ | {"LC_ALL": "C.UTF-8"})
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout

    def test_man_and_groff_warn_of_nothing(self):
        self.assert_silent("man", "--warnings=w", "--local-file", str(PAGE))
        self.assert_silent("groff", "-ww", "-man", "-Tutf8", str(PAGE))

    def test_mandoc_warns_of_nothing(self):
        self.assertEqual(self.assert_silent("mandoc", "-Tlint", "-Wwarning", str(PAGE)), "")

    def test_each_command_has_its_part_with_its_options(self):
        parts = dict(zip(headings := re.findall(r"^   (\S.*)$", page := shown(), re.MULTILINE),
                         re.split(r"^   \S.*$", page, flags=re.MULTILINE)[1:]))
        self.assertEqual(headings, command_table.all_paths()[1:])
        for path in headings:
            for option in set(command_table.options_of(path)) - {"-h", "--help"}:
                self.assertRegex(parts[path], rf"(?m)^       {option}\b", path)

    def test_everything_that_help_says_is_in_it(self):
        page = words(shown()).lower()
        for path in command_table.all_paths():
            text = command_table.help_of(path)
            lists, _, manual = text.partition("\nSubcommands:\n" if "\nSubcommands:" in text else "\nOptions:\n")
            described = [line.split("  ")[-1] for line in (lists + manual).splitlines() if re.match(r"  -?\S+.*  ", line)]
            paragraphs = manual.partition("\n\n")[2].split("\n\n")
            for told in described + paragraphs:
                self.assertIn(words(told).lower(), page, path)

    def test_it_has_the_sections_that_readers_look_for(self):
        sections = re.findall(r"^([A-Z][A-Z ]+)$", shown(), re.MULTILINE)
        self.assertEqual(sections, ["NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS", "DATABASES", "EXIT STATUS",
                                    "ENVIRONMENT", "FILES", "EXAMPLES", "SEE ALSO"])


if __name__ == "__main__":
    unittest.main()
