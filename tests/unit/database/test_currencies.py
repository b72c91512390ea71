"""The committed currencies against the tool that makes them and against ISO 4217."""

import json
import subprocess
import sys
import unittest

import delivered_data

TOOL = delivered_data.REPOSITORY / "tools" / "make_currencies.py"
ISO_CODES_TABLE = "/usr/share/iso-codes/json/iso_4217.json"


class DeliveredCurrencies(unittest.TestCase):

    def setUp(self):
        self.rows = {row["Ccy"]: row for row in delivered_data.read_currencies()}

    def test_are_what_the_tool_makes_of_the_installed_table(self):
        made = subprocess.run([sys.executable, TOOL], check=True, stdout=subprocess.PIPE).stdout
        self.assertEqual((delivered_data.SEED / "currencies.sql").read_bytes(), made)

    def test_are_the_codes_numbers_and_names_of_the_standard(self):
        with open(ISO_CODES_TABLE, encoding="utf-8") as table:
            standard = {entry["alpha_3"]: (int(entry["numeric"]), entry["name"])
                        for entry in json.load(table)["4217"]}
        self.assertEqual({code: (row["CcyID"], row["Name"]) for code, row in self.rows.items()}, standard)

    def test_have_unique_numbers(self):
        self.assertEqual(len({row["CcyID"] for row in self.rows.values()}), len(self.rows))

    def test_are_type_1_exactly_where_no_country_settles_in_them(self):
        self.assertEqual(sorted(code for code, row in self.rows.items() if row["CcyType"] == 1),
                         ["BOV", "CHE", "CHW", "CLF", "COU", "MXV", "USN", "UYI", "UYW",
                          "XAG", "XAU", "XBA", "XBB", "XBC", "XBD", "XDR", "XPD", "XPT", "XSU", "XTS", "XUA", "XXX"])
        self.assertEqual({row["CcyType"] for row in self.rows.values()}, {0, 1})

    def test_keep_letters_beyond_ascii(self):
        self.assertEqual(self.rows["VES"]["Name"], "Bolívar Soberano")
        self.assertEqual(self.rows["TOP"]["Name"], "Pa\u2019anga")


if __name__ == "__main__":
    unittest.main()
