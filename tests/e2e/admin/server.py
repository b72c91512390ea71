"""Databases on the PostgreSQL server that tools/with_postgres.sh started for the tests."""

import os
import subprocess


def uri(database):
    return os.environ["FERROWIND_POSTGRES"].removesuffix("postgres") + database


def password():
    return os.environ["FERROWIND_POSTGRES"].split(":")[2].split("@")[0]


def ask(database, statement):
    """The rows of a statement of the superuser, as psql prints them without decoration."""
    result = subprocess.run(["psql", "-X", "-q", "-A", "-t", "-v", "ON_ERROR_STOP=1", uri(database), "-c", statement],
                            capture_output=True, text=True, timeout=60)
    if result.returncode != 0:
        raise AssertionError(result.stderr)
    return result.stdout.strip()


class Database:
    """An empty database, dropped at the end of a test."""

    count = 0

    def __init__(self, test):
        Database.count += 1
        self.name = f"e2e_{os.getpid()}_{Database.count}"
        ask("postgres", f"CREATE DATABASE {self.name}")
        test.addCleanup(lambda: ask("postgres", f"DROP DATABASE {self.name} WITH (FORCE)"))
        self.uri = uri(self.name)

    def ask(self, statement):
        return ask(self.name, statement)

    def is_vacant(self):
        return self.ask("SELECT count(*) FROM pg_namespace WHERE nspname = 'ferrowind'") == "0"
