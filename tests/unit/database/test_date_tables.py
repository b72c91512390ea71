"""The committed date tables against the tool that reckons them."""

import subprocess
import unittest

import delivered_data

# Debian's own, which finds the modules of Debian's packages.
PYTHON = "/usr/bin/python3"
TOOL = delivered_data.REPOSITORY / "tools" / "make_date_tables.py"


class DateTables(unittest.TestCase):

    def test_are_what_the_tool_reckons(self):
        told = subprocess.run([PYTHON, "-B", TOOL, "--check"], capture_output=True, text=True)
        self.assertEqual((told.returncode, told.stdout, told.stderr), (0, "", ""))


if __name__ == "__main__":
    unittest.main()
