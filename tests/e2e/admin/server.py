"""Databases on the PostgreSQL server that tools/with_postgres.sh started for the tests."""

import json
import os
import subprocess
import time
import urllib.parse


def control(action):
    """Starts, stops or restarts the server; stopping cuts its connections."""
    subprocess.run([os.environ["FERROWIND_POSTGRES_CONTROL"], action], check=True, timeout=120)


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

    def rows(self, query):
        """The rows of a query, tuples of numbers, texts and None; dates are texts. The tables need no schema's name."""
        answer = self.ask(f"SET search_path = ferrowind; SELECT coalesce(json_agg(r), '[]') FROM ({query}) AS r")
        return [tuple(value for _, value in row) for row in json.loads(answer, object_pairs_hook=list)]

    def login(self, test, name, password, role=None):
        """Makes a login, a member of the role if one is given, until the end of the test; its URI for this database. The
        role must exist."""
        ask("postgres", f"CREATE ROLE {name} LOGIN PASSWORD '{password}'" + (f" IN ROLE {role}" if role else ""))
        test.addCleanup(lambda: ask("postgres", f"DROP ROLE {name}"))
        return self.uri_of(name, password)

    def uri_of(self, name, password):
        """The URI for this database of a login, whose name needs no encoding."""
        return f"postgresql://{name}:{urllib.parse.quote(password, safe='')}@{self.uri.split('@')[1]}"

    def wait_until_unused(self):
        """The server learns of a client that was killed a little later; what it did not commit is gone then."""
        deadline = time.monotonic() + 60
        while ask("postgres", f"SELECT 1 FROM pg_stat_activity WHERE datname = '{self.name}' LIMIT 1"):
            if time.monotonic() > deadline:
                raise AssertionError(f"{self.name} is still in use")
            time.sleep(0.05)

    def is_vacant(self):
        return self.ask("SELECT count(*) FROM pg_namespace WHERE nspname = 'ferrowind'") == "0"
