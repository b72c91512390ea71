"""The way from nothing to a spot date in the guide, word for word in each of its languages, with this build installed where the
guide has it installed. A build with sanitizers needs them in programs of others, too: those are the test's own additions."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest
import urllib.parse

import guide

ROOT = pathlib.Path(__file__).parents[3]
PAGE = "business-days.md"
EXAMPLE = pathlib.Path("docs/examples/spot_date")
DATE = "2026-05-07\n"


class Following(unittest.TestCase):

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        self.tree = self.home / "source tree"
        shutil.copytree(ROOT / EXAMPLE, self.tree / EXAMPLE)
        (self.tree / "build").mkdir()
        self.environment = {name: value for name, value in os.environ.items() if name != "PYTHONPATH"}
        self.environment |= {"HOME": str(self.home), "CXX": os.environ["COMPILER"], "CXXFLAGS": os.environ["FLAGS"],
                             "PATH": f"{self.home}/bin:/usr/bin:/bin"}
        self.environment.pop("FERROWIND_BUSINESS_DAYS_LIBRARY", None)
        if os.environ["FLAGS"]:
            self.write_compiler()
        subprocess.run(["cmake", "--install", os.environ["BUILD"], "--prefix", self.home / "ferrowind"], check=True,
                       capture_output=True)

    def write_compiler(self):
        """A compiler of C that brings the sanitizers into what it links."""
        compiler = self.home / "bin" / "cc"
        compiler.parent.mkdir()
        compiler.write_text("#!/bin/sh\nexec " + os.environ["COMPILER"].replace("clang++", "clang") + " " +
                            os.environ["FLAGS"] + ' -fsanitize-link-c++-runtime "$@" -lstdc++ -lm\n')
        compiler.chmod(0o755)

    def follow(self, block):
        environment = dict(self.environment)
        if block.person == "postgres on the server":
            server = urllib.parse.urlsplit(os.environ["FERROWIND_POSTGRES"])
            environment |= {"PGHOST": server.hostname, "PGPORT": str(server.port), "PGUSER": server.username,
                            "PGPASSWORD": server.password}
        if "python3 " in block.commands:
            environment |= {"LD_PRELOAD": os.environ["RUNTIME"], "ASAN_OPTIONS": "detect_leaks=0"}
        result = subprocess.run(["bash", "-e", "-o", "pipefail", "-c", block.commands], cwd=self.tree, env=environment,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                timeout=300)
        self.assertEqual(result.returncode, block.status, f"{block.place}:\n{block.commands}\n{result.stdout}")
        if block.expected is not None:
            self.assertTrue(guide.prints(block.expected, result.stdout), f"{block.place}:\n{result.stdout}")

    def test_each_language_prints_the_same_date(self):
        blocks = guide.blocks(PAGE)
        self.assertEqual({block.person for block in blocks}, {"user", "postgres on the server"})
        for block in blocks:
            self.follow(block)
        dates = [block.expected for block in blocks if block.expected]
        self.assertGreaterEqual(len(dates), 5)
        self.assertEqual(set(dates), {DATE})


class Examples(unittest.TestCase):

    def test_the_page_shows_the_examples_as_they_are(self):
        for language, name in (("cpp", "spot_date.cpp"), ("cmake", "CMakeLists.txt"), ("c", "spot_date.c"),
                               ("python", "spot_date.py")):
            with self.subTest(name):
                self.assertIn((ROOT / EXAMPLE / name).read_text(), guide.code(PAGE, language))


if __name__ == "__main__":
    unittest.main()
