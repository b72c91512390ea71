#!/usr/bin/env python3
"""Makes database/seed/currencies.sql: ISO 4217 as amended by the end of 2025.

    tools/make_currencies.py > database/seed/currencies.sql

The base is the table of the Debian package iso-codes, which is some years behind the standard, and by how many differs
from one edition of Debian to the next. What the standard has changed meanwhile stands here as a list, amendment by
amendment, so that every edition of the package gives the same file.

The file is committed, so that building needs neither the package nor this tool; a test keeps the two equal.
Write a new amendment into the list when the standard's agency publishes one.
"""

import argparse
import json
import sys
from typing import NamedTuple

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
    # Units in which institutions reckon (Arab Monetary Fund, IMF, ALBA, African Development Bank). No country's banks
    # settle in them, so there are no bank holidays to keep a calendar of.
    "supranational units of account": ["XAD", "XDR", "XSU", "XUA"],
}


class Currency(NamedTuple):
    code: str
    number: int
    name: str
    last_day: str | None = None


# What the standard has brought in since the oldest edition of the package that we build with (iso-codes 4.15).
ADDED = {
    176: Currency("XCG", 532, "Caribbean Guilder"),
    177: Currency("ZWG", 924, "Zimbabwe Gold"),
    179: Currency("XAD", 396, "Arab Accounting Dinar"),
}

# What it has moved to its list of historic codes, with the last day on which it was current: the day before the
# amendment makes it historic. Banknotes may have gone on circulating for some weeks (HRK until 14 January 2023, ANG
# until 30 June 2025, BGN until 31 January 2026), but no bank settled in them any more.
RETIRED = {
    174: Currency("HRK", 191, "Kuna", "2022-12-31"),
    175: Currency("SLL", 694, "Leone", "2023-12-31"),
    # The standard let XCG keep the number 532, which so names two codes. Here a number names one currency and is what
    # calendars hang on, so 532 is the one that lives; ANG went over into it at par, with its banks and their holidays.
    # ANG stands under the last number of the Netherlands Antilles in ISO 3166, the standard that ISO 4217 takes its
    # numbers from: it was never a currency's and is given to no other country.
    176: Currency("ANG", 530, "Netherlands Antillean Guilder", "2025-03-30"),
    177: Currency("ZWL", 932, "Zimbabwe Dollar", "2024-08-31"),
    178: Currency("CUC", 931, "Peso Convertible", "2021-06-30"),
    180: Currency("BGN", 975, "Bulgarian Lev", "2025-12-31"),
}

HEADER = """\
-- The currencies of ISO 4217 as amended by the end of 2025. CcyID is the standard's number; CcyType is 0 for the money of
-- a country or a monetary union and 1 for everything else in the standard: precious metals, bond-market units, funds and
-- index-linked units, supranational units of account, the codes for testing and for no currency, and money of the past,
-- which has a LastDay. ANG shared its number with XCG, its successor, and has one of its country instead (530).
-- Made by tools/make_currencies.py; change the tool, not this file.
"""


def currency_type(currency):
    is_other = any(currency.code in codes for codes in OTHER_CLASSES.values())
    return NOT_A_CURRENCY if is_other or currency.last_day else CURRENCY


def amended(entries):
    """The currencies of the package's table after all amendments, whichever of them the table has already."""
    currencies = {entry["alpha_3"]: Currency(entry["alpha_3"], int(entry["numeric"]), entry["name"]) for entry in entries}
    for changed in (ADDED, RETIRED):
        currencies.update({currency.code: currency for currency in changed.values()})
    return sorted(currencies.values())


def sql_text(text):
    return "'" + text.replace("'", "''") + "'"


def sql_row(currency):
    last_day = sql_text(currency.last_day) if currency.last_day else "NULL"
    return (f"({currency.number}, {sql_text(currency.code)}, {currency_type(currency)}, {sql_text(currency.name)}, "
            f"{last_day})")


def make_sql(entries):
    rows = ",\n".join(sql_row(currency) for currency in amended(entries))
    return f"{HEADER}INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay) VALUES\n{rows};\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--table", default=ISO_CODES_TABLE, help="the table to read (default: %(default)s)")
    with open(parser.parse_args().table, encoding="utf-8") as table:
        entries = json.load(table)["4217"]
    sys.stdout.reconfigure(encoding="utf-8")
    sys.stdout.write(make_sql(entries))


if __name__ == "__main__":
    main()
