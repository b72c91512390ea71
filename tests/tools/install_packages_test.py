#!/usr/bin/env python3
"""Runs tools/install_packages.sh against a package manager that only records what it is asked."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(sys.argv.pop())

PACKAGES = """# comment
build  g++    # compiler
build  cmake  # configures
test   cmake  # configures
test   xvfb   # display
"""

# A package is installed when a file of its name lies in the folder "installed".
DPKG_QUERY = """#!/bin/sh
for package; do :; done
if [ -e "$WORLD/installed/$package" ]; then printf installed; else exit 1; fi
"""
APT_GET = """#!/bin/sh
echo "$*" >>"$WORLD/calls"
case " $* " in
  *" update "*) test ! -e "$WORLD/no_update" ;;
  *" install "*)
    if [ -e "$WORLD/no_install" ]; then echo "E: no such package" >&2; exit 100; fi
    seen=false
    for word; do
      if $seen; then : >"$WORLD/installed/$word"; fi
      if [ "$word" = -- ]; then seen=true; fi
    done ;;
esac
"""
SUDO = """#!/bin/sh
echo "sudo $1" >>"$WORLD/sudo_calls"
if [ "$1" = -n ]; then shift; fi
exec "$@"
"""
# The standard commands that the script may use; apt-get, dpkg-query, sudo and id are the test's own.
BORROWED = ("bash", "sh", "dirname", "basename", "sed", "cut", "sort", "xargs", "mktemp", "rm", "tail", "env", "grep", "cat",
            "echo")


class InstallPackages(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.world = pathlib.Path(folder.name)
        self.commands = self.world / "bin"
        self.commands.mkdir()
        (self.world / "installed").mkdir()
        (self.world / "tools").mkdir()
        shutil.copy(SCRIPT, self.world / "tools" / "install_packages.sh")
        (self.world / "tools" / "packages.txt").write_text(PACKAGES, encoding="utf-8")
        for name in BORROWED:
            (self.commands / name).symlink_to(shutil.which(name))
        self.command("dpkg-query", DPKG_QUERY)
        self.command("apt-get", APT_GET)
        self.command("id", "#!/bin/sh\necho 0\n")

    def command(self, name, text):
        path = self.commands / name
        path.write_text(text, encoding="utf-8")
        path.chmod(0o755)

    def be_a_plain_user(self):
        self.command("id", "#!/bin/sh\necho 1000\n")

    def install(self, *packages):
        for package in packages:
            (self.world / "installed" / package).touch()

    def run_script(self, *groups):
        return subprocess.run(
            ["bash", self.world / "tools" / "install_packages.sh", *groups], stdin=subprocess.DEVNULL,
            env={"PATH": str(self.commands), "WORLD": str(self.world), "TMPDIR": str(self.world)},
            capture_output=True, text=True, check=False)

    def calls(self):
        path = self.world / "calls"
        return path.read_text(encoding="utf-8").splitlines() if path.exists() else []

    def test_asks_the_package_manager_nothing_when_nothing_is_missing(self):
        self.install("g++", "cmake")
        run = self.run_script("build")
        self.assertEqual((run.returncode, run.stdout, run.stderr, self.calls()), (0, "", "", []))

    def test_updates_once_and_installs_only_what_is_missing(self):
        self.install("g++")
        run = self.run_script("build", "test")
        self.assertEqual(run.returncode, 0, run.stderr)
        update, install = self.calls()
        self.assertTrue(update.endswith(" update"))
        self.assertTrue(install.endswith(" install --no-install-recommends -- cmake xvfb"), install)

    def test_installs_from_the_lists_that_are_there_when_they_cannot_be_updated(self):
        (self.world / "no_update").touch()
        run = self.run_script("build")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn("could not be updated", run.stderr)

    def test_says_what_could_not_be_installed_and_why(self):
        (self.world / "no_install").touch()
        run = self.run_script("build")
        self.assertEqual(run.returncode, 1)
        self.assertIn("E: no such package", run.stderr)
        self.assertIn("could not install: cmake g++", run.stderr)

    def test_refuses_an_installation_that_left_a_package_missing(self):
        self.command("apt-get", "#!/bin/sh\n")
        run = self.run_script("build")
        self.assertEqual(run.returncode, 1)
        self.assertIn("cmake is still missing", run.stderr)

    def test_uses_sudo_without_a_question_where_nobody_can_answer_it(self):
        self.be_a_plain_user()
        self.command("sudo", SUDO)
        run = self.run_script("build")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual((self.world / "sudo_calls").read_text(encoding="utf-8"), "sudo -n\nsudo -n\n")

    def test_names_the_command_for_root_when_there_is_no_sudo(self):
        self.be_a_plain_user()
        run = self.run_script("build")
        self.assertEqual(run.returncode, 1)
        self.assertIn("as root, run: apt-get install cmake g++", run.stderr)
        self.assertEqual(self.calls(), [])

    def test_refuses_an_unknown_group_and_lists_the_groups(self):
        run = self.run_script("build", "tset")
        self.assertEqual(run.returncode, 1)
        self.assertIn("no group 'tset'", run.stderr)
        self.assertIn("build test", run.stderr)
        self.assertEqual(self.calls(), [])

    def test_names_the_packages_on_a_system_without_debian_packages(self):
        (self.commands / "dpkg-query").unlink()
        run = self.run_script("build")
        self.assertEqual(run.returncode, 1)
        self.assertIn("cmake g++", run.stderr)


if __name__ == "__main__":
    unittest.main()
