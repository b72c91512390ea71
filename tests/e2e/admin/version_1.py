"""Databases as version 1 of the schema had them."""

import pathlib

import server

SCRIPTS = pathlib.Path(__file__).parents[2] / "contract" / "database" / "version_1"
CONTENT = ("INSERT INTO {0}CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Sunday', 2, 1); "
           "INSERT INTO {0}CldCalendar (ID1, Year1) VALUES (978, 2026); ")


def make_file(test, name="a.db"):
    """Makes the test's file, with a rule and a calendar in it, and returns its URL."""
    database = test.open_from_outside(name)
    database.executescript((SCRIPTS / "sqlite.sql").read_text())
    database.executescript(CONTENT.format("") + """
        WITH RECURSIVE Day (N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM Day WHERE N < 365)
        INSERT INTO CldDay SELECT 978, 2026, N, date('2026-01-01', (N - 1) || ' days'), 1, NULL, NULL FROM Day""")
    database.close()
    return test.url(name)


def make_on_server(test):
    """Makes a database on the server, with a rule and a calendar in it, and returns it."""
    database = server.Database(test)
    database.ask("BEGIN; " + (SCRIPTS / "postgres.sql").read_text() + "; COMMIT")
    database.ask(CONTENT.format("ferrowind.") + """
        INSERT INTO ferrowind.CldDay SELECT 978, 2026, n, date '2026-01-01' + (n - 1), 1 FROM generate_series(1, 365) AS n""")
    return database
