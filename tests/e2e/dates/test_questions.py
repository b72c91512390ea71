"""The same questions through C++, C and Python, and what the shared library lets out of itself."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

import server

ROOT = pathlib.Path(__file__).parents[3]
HERE = pathlib.Path(__file__).parent
QUESTIONS = ROOT / "tests" / "questions" / "delivered_2026.txt"
PYTHON = "/usr/bin/python3"


def questions():
    """The questions and their answers."""
    lines = [line for line in QUESTIONS.read_text().splitlines() if line and not line.startswith("#")]
    return [tuple(line.split(" = ")) for line in lines]


class Questions(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.url = f"sqlite:{folder.name}/calendars.db"
        subprocess.run([os.environ["FERROWINDCTL"], "init", cls.url, "--year", "2026"], check=True,
                       capture_output=True, timeout=120)

    def answers(self, command, url=None, environment=None):
        asked = "".join(question + "\n" for question, _ in questions())
        result = subprocess.run([*command, url or self.url], input=asked, capture_output=True, text=True, timeout=120,
                                env={**os.environ, **(environment or {})})
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return list(zip([question for question, _ in questions()], result.stdout.splitlines(), strict=True))

    def test_all_questions_of_the_line_format_are_asked(self):
        self.assertEqual({question.split()[0] for question, _ in questions()},
                         {"is", "next", "previous", "adjust", "add", "between", "month-end", "spot", "value"})

    def test_the_command_line_answers(self):
        self.assertEqual(self.answers([os.environ["FERROWINDCTL"], "date", "serve"]), questions())

    def test_c_answers(self):
        self.assertEqual(self.answers([os.environ["ANSWER_QUESTIONS"]]), questions())

    def answers_of_python(self, url=None):
        environment = {"LD_PRELOAD": os.environ["RUNTIME"], "ASAN_OPTIONS": "detect_leaks=0"}
        return self.answers([PYTHON, "-B", str(HERE / "answer_questions.py")], url, environment)

    def test_python_answers(self):
        self.assertEqual(self.answers_of_python(), questions())

    def test_c_and_python_answer_of_a_server_with_a_readers_login(self):
        database = server.Database(self)
        subprocess.run([os.environ["FERROWINDCTL"], "copy", self.url, database.uri], check=True, capture_output=True,
                       timeout=120)
        reader = database.login(self, "asking_reader", "secret", "ferrowind_reader")
        self.assertEqual(self.answers([os.environ["ANSWER_QUESTIONS"]], reader), questions())
        self.assertEqual(self.answers_of_python(reader), questions())


class Library(unittest.TestCase):

    def test_nothing_but_the_interface_can_be_seen(self):
        output = subprocess.run(["nm", "-D", "--defined-only", os.environ["FERROWIND_BUSINESS_DAYS_LIBRARY"]], check=True,
                                capture_output=True, text=True).stdout
        seen = {line.split()[-1].split("@")[0] for line in output.splitlines()} - {"FERROWIND_BD_1"}
        header = (ROOT / "host" / "business_days" / "ferrowind_business_days.h").read_text()
        declared = set(re.findall(r"(ferrowind_bd_\w+)\(", header))
        self.assertGreater(len(declared), 20)
        self.assertEqual(seen, declared)

    def test_programs_ask_for_the_interface_they_were_linked_with(self):
        output = subprocess.run(["readelf", "-d", os.environ["FERROWIND_BUSINESS_DAYS_LIBRARY"]], check=True,
                                capture_output=True, text=True).stdout
        self.assertIn("[libferrowind_business_days.so.1]", output)


if __name__ == "__main__":
    unittest.main()
