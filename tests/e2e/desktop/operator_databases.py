"""The databases on which an operator's day is told: a file of one user, and one on the server that tools/with_postgres.sh
started. Each is made by an administrator and used by an operator who has no more rights than one needs."""

import getpass
import json
import os
import subprocess

import server
from desktop_session import rows_of


def ferrowindctl(*arguments):
    return subprocess.run([os.environ['FERROWINDCTL_PROGRAM'], *map(str, arguments)], check=True, capture_output=True,
                          text=True, timeout=120).stdout


class OperatorDatabase:
    """`url` is the operator's, whom the history calls `operator`; `administrator_url` is that of who made the database."""

    def call(self, procedure, *arguments):
        """The record sets of a call, each a list of dictionaries."""
        document = json.loads(ferrowindctl('call', self.url, procedure, *arguments, '--format', 'json'))
        assert document['return'] == 0, document
        return [[dict(zip(rows['fields'], row)) for row in rows['rows']] for rows in document['results']]


class FileDatabase(OperatorDatabase):

    def __init__(self, session, first_year):
        self.file = session.home / 'calendars.sqlite'
        self.url = self.administrator_url = f'sqlite:{self.file}'
        self.operator = getpass.getuser()
        ferrowindctl('init', self.url, '--year', first_year)

    def rows(self, query):
        return rows_of(self.file, query)


class ServerDatabase(OperatorDatabase):
    """Gone at the end of the test."""

    def __init__(self, test, first_year):
        self.database = server.Database(test)
        self.administrator_url = self.database.uri
        self.operator = 'anna'
        ferrowindctl('init', self.administrator_url, '--year', first_year)
        self.url = self.database.login(test, self.operator, 'Ans%wer;42', role='ferrowind_operator')

    def rows(self, query):
        return self.database.rows(query)
