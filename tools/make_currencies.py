#!/usr/bin/env python3
"""Makes database/seed/currencies.sql from the ISO 4217 table of the Debian package iso-codes.

    tools/make_currencies.py > database/seed/currencies.sql

The file is committed, so that building needs neither the package nor this tool; a test keeps the two equal.
Run it again when the package brings a new edition of the standard.
"""

import argparse
import json
import sys

ISO_CODES_TABLE = "/usr/share/iso-codes/json/iso_4217.json"

CURRENCY = 0
NOT_A_CURRENCY = 1

# What ISO 4217 lists beside the money of a country or a monetary union. The table of iso-codes does not carry the
# standard's classes, so they stand here. A code that is in none of them is a currency: that holds for a new
# national code by itself, and also for XAF, XCD, XOF and XPF, which begin with X because several countries share
# them, and which are paid out like any other money.
OTHER_CLASSES = {
    "precious metals": ["XAG", "XAU", "XPD", "XPT"],
    "bond-market units": ["XBA", "XBB", "XBC", "XBD"],
    "testing, and no currency involved": ["XTS", "XXX"],
    # The fund codes of the standard, and UYW, the unit that Uruguay's wages and pensions are indexed by: of the same
    # kind as UYI, reckoned in but settled in UYU.
    "funds and index-linked units": ["BOV", "CHE", "CHW", "CLF", "COU", "MXV", "USN", "UYI", "UYW"],
    # Units in which institutions reckon (IMF, African Development Bank, ALBA). No country's banks settle in them,
    # so there are no bank holidays to keep a calendar of.
    "supranational units of account": ["XDR", "XSU", "XUA"],
}

HEADER = """\
-- The currencies of ISO 4217. CcyID is the standard's number; CcyType is 0 for the money of a country or a monetary
-- union and 1 for everything else in the standard: precious metals, bond-market units, funds and index-linked units,
-- supranational units of account, and the codes for testing and for no currency.
-- Made by tools/make_currencies.py; change the tool, not this file.
"""


def currency_type(code):
    return NOT_A_CURRENCY if any(code in codes for codes in OTHER_CLASSES.values()) else CURRENCY


def sql_text(text):
    return "'" + text.replace("'", "''") + "'"


def sql_row(entry):
    code = entry["alpha_3"]
    return f"({int(entry['numeric'])}, {sql_text(code)}, {currency_type(code)}, {sql_text(entry['name'])})"


def make_sql(entries):
    rows = [sql_row(entry) for entry in sorted(entries, key=lambda entry: entry["alpha_3"])]
    return HEADER + "INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name) VALUES\n" + ",\n".join(rows) + ";\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--table", default=ISO_CODES_TABLE, help="the table to read (default: %(default)s)")
    with open(parser.parse_args().table, encoding="utf-8") as table:
        entries = json.load(table)["4217"]
    sys.stdout.reconfigure(encoding="utf-8")
    sys.stdout.write(make_sql(entries))


if __name__ == "__main__":
    main()
