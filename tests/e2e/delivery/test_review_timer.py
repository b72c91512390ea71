"""The daily review as systemd runs it: the unit files judged by systemd's own program, and their command run as it stands."""

import os
import pathlib
import re
import shlex
import subprocess

import ferrowindctl

ROOT = pathlib.Path(__file__).parents[3]
UNITS = ROOT / "host/admin/review_timer"
SERVICE = UNITS / "ferrowind-review.service"
PACKAGED = "/usr/bin/ferrowindctl"
# In tenths; systemd calls a service below 2.0 fine.
MOST_EXPOSED = "20"


def settings(path):
    """The values of a unit file or of a file of variables by their names; of several the last."""
    return dict(re.findall(r"^(\w+)=(.*)$", path.read_text(encoding="utf-8"), re.MULTILINE))


class ReviewTimer(ferrowindctl.InAFolder):

    def units_here(self):
        """The unit files with the built program in place of the packaged one."""
        for path in (SERVICE, UNITS / "ferrowind-review.timer"):
            text = path.read_text(encoding="utf-8")
            self.path(path.name).write_text(text.replace(PACKAGED, ferrowindctl.PROGRAM), encoding="utf-8")
            yield str(self.path(path.name))

    def run_service(self, url, options=""):
        """Runs the command of the service with what systemd would put into it."""
        values = settings(UNITS / "ferrowind.default") | {"FERROWIND_URL": url, "FERROWIND_REVIEW_OPTIONS": options}
        words = []
        for word in shlex.split(settings(SERVICE)["ExecStart"]):
            whole = re.fullmatch(r"\$\{(\w+)\}", word)
            split = re.fullmatch(r"\$(\w+)", word)
            words += [values[whole.group(1)]] if whole else values[split.group(1)].split() if split else [word]
        self.assertEqual(words[0], PACKAGED)
        return ferrowindctl.run(*words[1:])

    def test_systemd_finds_nothing_wrong_in_the_units(self):
        result = subprocess.run(["systemd-analyze", "verify", "--man=no", *self.units_here()],
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=60)
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_the_service_may_do_little_beside_its_work(self):
        service, _ = self.units_here()
        result = subprocess.run(["systemd-analyze", "security", "--offline=yes", f"--threshold={MOST_EXPOSED}", service],
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=60)
        self.assertEqual(result.returncode, 0, result.stdout[-500:])

    def test_it_reviews_the_database_that_is_set(self):
        self.assert_run(ferrowindctl.DONE, "init", self.url())
        result = self.run_service(self.url())
        self.assertIn(b"calendars of", result.stdout)
        self.assertEqual(result.stderr, b"")

    def test_it_takes_more_options(self):
        self.assert_run(ferrowindctl.DONE, "init", self.url())
        result = self.run_service(self.url(), "--horizon 9 --format csv")
        self.assertEqual(result.returncode, ferrowindctl.NOT_DONE)
        self.assertTrue(result.stdout.startswith(b"level,"), result.stdout[:100])

    def test_it_fails_when_calendars_are_missing(self):
        self.assert_run(ferrowindctl.DONE, "init", self.url(), "--empty")
        self.assertEqual(self.run_service(self.url()).returncode, ferrowindctl.NOT_DONE)

    def test_it_fails_while_no_database_is_set(self):
        url = settings(UNITS / "ferrowind.default")["FERROWIND_URL"]
        self.assertEqual(url, "")
        self.assertEqual(self.run_service(url).returncode, ferrowindctl.NOT_DONE)

    def test_no_file_that_everybody_can_read_asks_for_a_password(self):
        self.assertNotRegex((UNITS / "ferrowind.default").read_text(encoding="utf-8"), r"(?m)^PGPASSWORD|//\w+:")
        # A file without it must not stop the service.
        self.assertEqual(settings(SERVICE)["EnvironmentFile"], "-/etc/ferrowind/password")
