"""ferrowindctl date: questions about business days, one by one and line by line, on both engines."""

import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest

import ferrowindctl
import server
from ferrowindctl import DONE

CLOSED, NOT_ANSWERED, NOT_PREPARED = 1, 2, 3
# The questions, their answers by the delivered books, and the status.
ANSWERS = [
    ("is EUR 2026-12-24", "open", DONE),
    ("is EUR 2026-12-25", "closed", CLOSED),
    ("is EUR,USD 2026-11-26", "closed", CLOSED),
    ("is EUR 2099-01-01", "not prepared", NOT_PREPARED),
    ("next EUR,USD 2026-12-24", "2026-12-28", DONE),
    ("next 978,USD 2026-12-24", "2026-12-28", DONE),
    ("previous eur 2026-12-28", "2026-12-24", DONE),
    ("adjust EUR 2026-05-31 Following", "2026-06-01", DONE),
    ("adjust EUR 2026-05-31 ModifiedFollowing", "2026-05-29", DONE),
    ("add EUR 2026-12-23 2", "2026-12-28", DONE),
    ("add EUR 2026-12-28 -2", "2026-12-23", DONE),
    ("between EUR 2026-12-23 2026-12-28", "2", DONE),
    ("between EUR 2026-12-28 2026-12-23", "-2", DONE),
    ("month-end EUR 2026-05-10", "2026-05-29", DONE),
    ("spot EURUSD 2026-12-22", "2026-12-24", DONE),
    ("spot EUR/JPY 2026-04-30", "2026-05-07", DONE),
    ("spot 978/392 2026-04-30", "2026-05-07", DONE),
    ("value EURUSD 2026-12-22 3M", "2027-03-24", DONE),
]
REFUSALS = [
    ("next EUR 2099-01-01", "EUR 2099 is not prepared", NOT_PREPARED),
    ("next QQQ 2026-01-01", "There is no calendar of QQQ", NOT_ANSWERED),
    ("next 999 2026-01-01", "There is no calendar of 999", NOT_ANSWERED),
    ("is EUR,,USD 2026-01-01", "\"EUR,,USD\" has a place without a currency's code", NOT_ANSWERED),
    ("next EUR 2026-02-30", "\"2026-02-30\" is no date YYYY-MM-DD", NOT_ANSWERED),
    ("adjust EUR 2026-05-31 Sideways", "\"Sideways\" is no convention", NOT_ANSWERED),
    ("add EUR 2026-05-31 2x", "\"2x\" is no number of days", NOT_ANSWERED),
    ("value EURUSD 2026-12-22 soon", "\"soon\" is no tenor", NOT_ANSWERED),
    ("spot EUREUR 2026-12-22", "EUREUR", NOT_ANSWERED),
]


class DateTest(ferrowindctl.InAFolder):
    """The calendars are made once, and copied for each test."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.calendars = pathlib.Path(folder.name) / "calendars.db"
        subprocess.run([os.environ["FERROWINDCTL"], "init", f"sqlite:{cls.calendars}", "--year", "2026"], check=True,
                       capture_output=True, timeout=120)

    def setUp(self):
        super().setUp()
        shutil.copy(self.calendars, self.path("calendars.db"))
        self.database = self.url("calendars.db")

    def ask(self, question, *options, status=DONE):
        name, *words = question.split()
        return self.run_ferrowindctl("date", name, self.database, *words, *options, status=status)

    def run_ferrowindctl(self, *arguments, status):
        result = subprocess.run([os.environ["FERROWINDCTL"], *arguments], capture_output=True, text=True, timeout=120)
        self.assertEqual(result.returncode, status, result.stderr)
        return result.stdout, result.stderr

    def serve(self, database, *options):
        process = subprocess.Popen([os.environ["FERROWINDCTL"], "date", "serve", database, *options],
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        process.stdin.close()
        process.stdout.close()
        return process.wait(timeout=60)

    @staticmethod
    def answer(process, line):
        process.stdin.write(line + "\n")
        process.stdin.flush()
        return process.stdout.readline().rstrip("\n")

    def follows_changes(self, asking, changing):
        """Asks `asking` while the database `changing` names, the same, is changed."""
        served = self.serve(asking)
        self.assertEqual(self.answer(served, "spot EURUSD 2026-12-22"), "2026-12-24")
        self.assert_run(DONE, "conventions", "set", changing, "spot EUR/USD 1")
        self.assert_run(DONE, "call", changing, "CldIUMain", "ID1=978", "Year1=2026", "TID1=1", "ID2=1", "Day1=359",
                        "ODate=2026-12-25", "Comment=open")
        deadline = time.monotonic() + 60
        while self.answer(served, "is EUR 2026-12-25") != "open" and time.monotonic() < deadline:
            time.sleep(0.2)
        self.assertEqual(self.answer(served, "is EUR 2026-12-25"), "open")
        self.assertEqual(self.answer(served, "spot EURUSD 2026-12-22"), "2026-12-23")


class DatesOfAFile(DateTest):
    def test_answers_and_refuses_line_by_line(self):
        served = self.serve(self.database)
        for question, expected, _ in ANSWERS:
            with self.subTest(question):
                self.assertEqual(self.answer(served, question), expected)
        for question, why, _ in REFUSALS:
            with self.subTest(question):
                answer = self.answer(served, question)
                self.assertTrue(answer.startswith("error: ") and why in answer, answer)
        for line in ("", "   ", "what EUR", "next EUR", "next EUR 2026-12-24 more", "next " + "E" * 5000, "\x01"):
            self.assertTrue(self.answer(served, line).startswith("error: "), line)
        for line in ("is EUR\0 2026-12-25", "\0", "is\x7f EUR 2026-12-25", "is EUR 2026-12-25 \x1b[2J"):
            self.assertEqual(self.answer(served, line), "error: a question has no control characters")
        self.assertEqual(self.answer(served, "is\tEUR 2026-12-24\r"), "open")
        served.stdin.close()
        self.assertEqual(served.wait(timeout=60), DONE)

    def test_answers_one_by_one_with_a_status(self):
        for question, expected, status in ANSWERS[:5] + ANSWERS[9:10] + ANSWERS[-1:]:
            with self.subTest(question):
                output, errors = self.ask(question, status=status)
                self.assertEqual(output, expected + "\n")
                self.assertEqual(errors, "ferrowindctl: EUR 2099 is not prepared\n" if status == NOT_PREPARED else "")
        for question, why, status in REFUSALS[:3]:
            with self.subTest(question):
                output, errors = self.ask(question, status=status)
                self.assertEqual(output, "")
                self.assertIn(why, errors)

    def test_tells_why(self):
        output, _ = self.ask("spot EURJPY 2026-04-30", "--why")
        self.assertEqual(output.splitlines(), [
            "2026-05-01 Labour Day (1 May): EUR", "2026-05-02 Saturday: EUR, JPY, USD",
            "2026-05-03 Sunday: EUR, USD; Constitution Memorial Day: JPY", "2026-05-04 Greenery Day: JPY",
            "2026-05-05 Children's Day: JPY", "2026-05-06 Substitute Holiday: JPY", "2026-05-07"])
        self.assertEqual(self.answer(self.serve(self.database, "--why"), "next EUR 2026-12-24"),
                         "2026-12-28 (2026-12-25 Christmas Day: EUR; 2026-12-26 St Stephen's Day: EUR; 2026-12-27 Sunday: EUR)")
        served = self.serve(self.database, "--format", "json", "--why")
        self.assertEqual(json.loads(self.answer(served, "add EUR 2026-12-23 2")), {
            "question": "add EUR 2026-12-23 2", "answer": "2026-12-28",
            "passed": [{"date": f"2026-12-{day}", "closed": ["EUR"], "names": {"EUR": name}}
                       for day, name in ((25, "Christmas Day"), (26, "St Stephen's Day"), (27, "Sunday"))]})
        self.assertEqual(json.loads(self.answer(served, "between EUR 2026-12-23 2026-12-28"))["answer"], 2)
        self.assertEqual(json.loads(self.answer(served, "is EUR 2099-01-01"))["remark"], "EUR 2099 is not prepared")
        self.assertIn("no question", json.loads(self.answer(served, "what?"))["error"])

    def test_a_closed_trade_date_stays_when_that_is_asked_for(self):
        self.assertEqual(self.ask("spot EURGBP 2026-04-03")[0], "2026-04-09\n")
        self.assertEqual(self.ask("spot EURGBP 2026-04-03", "--trade-date-stays")[0], "2026-04-08\n")

    def test_what_cannot_be_answered_is_never_closed(self):
        for arguments in (["EUR"], ["EUR", "2026-12-24", "--what"]):
            self.run_ferrowindctl("date", "is", self.database, *arguments, status=NOT_ANSWERED)
        for database in (self.url("none.db"), "nothing:"):
            self.run_ferrowindctl("date", "is", database, "EUR", "2026-12-24", status=NOT_ANSWERED)

    def test_changes_are_followed(self):
        self.follows_changes(self.database, self.database)


class DatesOnAServer(DateTest):
    def test_a_readers_login_is_enough_and_changes_are_followed(self):
        database = server.Database(self)
        self.assert_run(DONE, "copy", self.database, database.uri)
        reader = database.login(self, "asking_reader", "secret", "ferrowind_reader")
        self.follows_changes(reader, database.uri)
        self.database = reader
        self.assertEqual(self.ask("spot EUR/JPY 2026-04-30")[0], "2026-05-07\n")


if __name__ == "__main__":
    unittest.main()
