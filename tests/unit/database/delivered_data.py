"""Reads the delivered data of database/seed/ as the tests of this folder compare it."""

import pathlib
import sqlite3

REPOSITORY = pathlib.Path(__file__).resolve().parents[3]
SEED = REPOSITORY / "database" / "seed"


def read_currencies():
    """The rows that the script inserts, as dictionaries, from a table without types or constraints."""
    database = sqlite3.connect(":memory:")
    database.row_factory = sqlite3.Row
    database.execute("CREATE TABLE DicCcy (CcyID, Ccy, CcyType, Name, LastDay)")
    database.executescript((SEED / "currencies.sql").read_text(encoding="utf-8"))
    return [dict(row) for row in database.execute("SELECT * FROM DicCcy")]
