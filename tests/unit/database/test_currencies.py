"""The committed currencies against the tool that makes them, and against ISO 4217 with its amendments."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

import delivered_data

TOOL = delivered_data.REPOSITORY / "tools" / "make_currencies.py"
ISO_CODES_TABLE = "/usr/share/iso-codes/json/iso_4217.json"

# As the amendments 174 to 180 of the standard have it. The package's table may be older or newer than any of them.
NEW = {"XCG": (532, "Caribbean Guilder"), "ZWG": (924, "Zimbabwe Gold"), "XAD": (396, "Arab Accounting Dinar")}
# ANG has a number of its country's, because its own is XCG's now.
PAST = {"ANG": (530, "Netherlands Antillean Guilder"), "BGN": (975, "Bulgarian Lev"), "CUC": (931, "Peso Convertible"),
        "HRK": (191, "Kuna"), "SLL": (694, "Leone"), "ZWL": (932, "Zimbabwe Dollar")}
LAST_DAYS = {"ANG": "2025-03-30", "BGN": "2025-12-31", "CUC": "2021-06-30", "HRK": "2022-12-31", "SLL": "2023-12-31",
             "ZWL": "2024-08-31"}


def read_table():
    with open(ISO_CODES_TABLE, encoding="utf-8") as table:
        return {entry["alpha_3"]: entry for entry in json.load(table)["4217"]}


def make(*arguments):
    return subprocess.run([sys.executable, "-B", TOOL, *arguments], check=True, stdout=subprocess.PIPE).stdout


class DeliveredCurrencies(unittest.TestCase):

    def setUp(self):
        self.rows = {row["Ccy"]: row for row in delivered_data.read_currencies()}

    def test_are_what_the_tool_makes_of_the_installed_table(self):
        self.assertEqual((delivered_data.SEED / "currencies.sql").read_bytes(), make())

    def test_are_the_same_whichever_amendments_the_table_has_already(self):
        entries = read_table()
        for code, (number, name) in NEW.items():
            entries[code] = {"alpha_3": code, "name": name, "numeric": f"{number:03}"}
        everything = dict(entries)
        # As the standard lists it beside XCG, and as a later edition has it.
        everything["ANG"] = {"alpha_3": "ANG", "name": "Netherlands Antillean Guilder", "numeric": "532"}
        without_past = {code: entry for code, entry in entries.items() if code not in LAST_DAYS}
        with tempfile.TemporaryDirectory() as folder:
            for edition in (everything, without_past):
                table = pathlib.Path(folder) / "iso_4217.json"
                table.write_text(json.dumps({"4217": list(edition.values())}), encoding="utf-8")
                self.assertEqual(make("--table", table), (delivered_data.SEED / "currencies.sql").read_bytes())

    def test_are_the_codes_numbers_and_names_of_the_standard(self):
        standard = {code: (int(entry["numeric"]), entry["name"]) for code, entry in read_table().items()}
        self.assertEqual({code: (row["CcyID"], row["Name"]) for code, row in self.rows.items()},
                         {**standard, **NEW, **PAST})

    def test_have_unique_numbers(self):
        self.assertEqual(len({row["CcyID"] for row in self.rows.values()}), len(self.rows))

    def test_name_the_successor_by_a_number_that_two_codes_have_had(self):
        self.assertEqual([row["Ccy"] for row in self.rows.values() if row["CcyID"] == 532], ["XCG"])

    def test_have_a_last_day_exactly_where_they_are_money_no_more(self):
        self.assertEqual({code: row["LastDay"] for code, row in self.rows.items() if row["LastDay"]}, LAST_DAYS)

    def test_are_type_1_exactly_where_no_country_settles_in_them(self):
        self.assertEqual(sorted(code for code, row in self.rows.items() if row["CcyType"] == 1),
                         sorted(["BOV", "CHE", "CHW", "CLF", "COU", "MXV", "USN", "UYI", "UYW", "XAD", "XAG", "XAU", "XBA",
                                 "XBB", "XBC", "XBD", "XDR", "XPD", "XPT", "XSU", "XTS", "XUA", "XXX", *LAST_DAYS]))
        self.assertEqual({row["CcyType"] for row in self.rows.values()}, {0, 1})

    def test_keep_letters_beyond_ascii(self):
        self.assertEqual(self.rows["VES"]["Name"], "Bolívar Soberano")
        self.assertEqual(self.rows["TOP"]["Name"], "Pa\u2019anga")


if __name__ == "__main__":
    unittest.main()
