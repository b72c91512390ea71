"""Reads the delivered data of database/seed/ as the tests of this folder compare it."""

import datetime
import pathlib
import sqlite3
from typing import NamedTuple

REPOSITORY = pathlib.Path(__file__).resolve().parents[3]
SEED = REPOSITORY / "database" / "seed"

WEEKDAY_RULE = 2
FIXED_DATE_RULE = 3
HOLIDAY_POINT_RULE = 4


class CalendarDate(NamedTuple):
    currency: str
    date: datetime.date
    rule: str


def read_calendar_dates():
    dates = []
    for line in (SEED / "calendars.txt").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            currency, date, rule = line.split(" ", 2)
            dates.append(CalendarDate(currency, datetime.date.fromisoformat(date), rule))
    return dates


def run_seed_script(name, table):
    """The rows that a seed script inserts, as dictionaries, from a table without types or constraints."""
    database = sqlite3.connect(":memory:")
    database.row_factory = sqlite3.Row
    database.execute(f"CREATE TABLE {table}")
    database.executescript((SEED / name).read_text(encoding="utf-8"))
    return [dict(row) for row in database.execute(f"SELECT * FROM {table.split('(')[0]}")]


def read_rules():
    return run_seed_script("rules.sql", "CldHoliday(ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del)")


def read_currencies():
    return run_seed_script("currencies.sql", "DicCcy(CcyID, Ccy, CcyType, Name)")
