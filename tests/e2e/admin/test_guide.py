"""The administrator's guide, followed word for word: each of its commands as it stands, and what it prints.

Root's commands, which change the machine, are left out. Files that the guide has carried from one machine to another are
carried here, and two databases of an older version are there for it to upgrade."""

import contextlib
import fcntl
import os
import pathlib
import pwd
import select
import shutil
import signal
import subprocess
import tempfile
import termios
import time
import types
import unittest
import urllib.parse

import ferrowindctl
import guide
import server
import version_1

WITH_POSTGRES = pathlib.Path(__file__).parents[3] / "tools" / "with_postgres.sh"
LEFT_OUT = {"root", "root, in the source tree"}
PASSWORD = "sesame:open"
PASSWORD_LINE = "db.bank.example:*:{}:{}:" + PASSWORD.replace(":", "\\:") + "\n"
# Page, whose file, its name, to whom, under which name.
CARRIED = [
    ("admin/tls.md", "user", "server.crt", "postgres on the server", "server.crt"),
    ("admin/tls.md", "user", "server.key", "postgres on the server", "server.key"),
    ("admin/tls.md", "user", "ca.crt", "anna on her machine", "ferrowind-ca.crt"),
    ("admin/tls.md", "user", "ca.crt", "otto on his machine", "ferrowind-ca.crt"),
    ("admin/backup.md", "postgres on the server", "calendars.dump", "postgres on the new server", "calendars.dump"),
    ("admin/backup.md", "postgres on the server", "roles.sql", "postgres on the new server", "roles.sql"),
    ("admin/copy.md", "user", "calendars.db", "postgres on the server", "calendars.db"),
]


class Cluster:
    """A server as Debian installs it: who works on its machine gets in under their own name."""

    def __init__(self, uri, account):
        self.account = account
        self.address = urllib.parse.urlsplit(uri)
        self.socket_folder = self._as_superuser(uri, "SHOW unix_socket_directories")
        if account is None:
            self._as_superuser(uri, f'CREATE ROLE "{pwd.getpwuid(os.getuid()).pw_name}" SUPERUSER LOGIN')
        with open(self._as_superuser(uri, "SHOW hba_file"), "r+", encoding="utf-8") as rules:
            lines = "local all all peer\n" + rules.read()
            rules.seek(0)
            rules.write(lines)
        self._as_superuser(uri, "SELECT pg_reload_conf()")

    @staticmethod
    def _as_superuser(uri, statement):
        return subprocess.run(["psql", "-X", "-q", "-A", "-t", uri, "-c", statement], check=True, capture_output=True,
                              text=True, timeout=60).stdout.strip()

    def local(self):
        # The superuser's own database, as Debian has it, whatever the account is called here.
        return {"PGHOST": self.socket_folder, "PGPORT": str(self.address.port), "PGDATABASE": "postgres"}

    def remote(self):
        # Every host's name, the server's in the guide too, stands for this address.
        return {"PGHOSTADDR": self.address.hostname, "PGPORT": str(self.address.port)}


class Person:
    """Somebody with a home and an account, who types commands."""

    def __init__(self, home, settings, account=None):
        self.home = home
        self.account = account
        home.mkdir(mode=0o700)
        if account is not None:
            shutil.chown(home, account, account)
        self.environment = {**settings, "HOME": str(home), "XDG_RUNTIME_DIR": str(home), "QT_QPA_PLATFORM": "offscreen"}

    def start(self, commands, environment):
        """The commands in a shell on a terminal, whose other end is returned too."""
        screen, terminal = os.openpty()

        def take_terminal():
            fcntl.ioctl(0, termios.TIOCSCTTY, 0)

        become = ["runuser", "-u", self.account, "--"] if self.account is not None else []
        process = subprocess.Popen(
            [*become, "bash", "-e", "-o", "pipefail", "-c", commands], cwd=self.home, env={**environment, **self.environment},
            stdin=terminal, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True,
            preexec_fn=take_terminal)
        os.close(terminal)
        return process, screen

    def receive(self, source, name):
        shutil.copyfile(source, self.home / name)
        (self.home / name).chmod(0o600)
        if self.account is not None:
            shutil.chown(self.home / name, self.account, self.account)


class Guide(ferrowindctl.InAFolder):

    def setUp(self):
        super().setUp()
        # Not in TMPDIR, which may be root's alone.
        self.homes = pathlib.Path(tempfile.mkdtemp(prefix="ferrowind-guide-", dir="/tmp"))
        self.addCleanup(shutil.rmtree, self.homes)
        self.homes.chmod(0o755)
        account = "postgres" if os.getuid() == 0 else None
        self.environment = self.make_environment()
        self.make_older_databases()
        old, new = Cluster(os.environ["FERROWIND_POSTGRES"], account), Cluster(self.start_new_server(), account)
        self.people = {
            "user": Person(self.homes / "user", {}),
            "anna on her machine": Person(self.homes / "anna", old.remote()),
            "otto on his machine": Person(self.homes / "otto", old.remote()),
            "postgres on the server": Person(self.homes / "server", old.local(), account),
            "postgres on the new server": Person(self.homes / "new_server", new.local(), account),
        }
        shutil.move(self.path("older.db"), self.homes / "user")
        passwords = self.homes / "otto" / ".pgpass"
        passwords.write_text(PASSWORD_LINE.format("*", "otto"))
        passwords.chmod(0o600)

    def make_environment(self):
        """Programs and settings that every account can read."""
        programs = self.homes / "bin"
        programs.mkdir()
        for program in ("FERROWINDCTL", "FERROWIND"):
            shutil.copy(os.environ[program], programs)
        environment = {name: value for name, value in os.environ.items() if not name.startswith(("PG", "FERROWIND"))}
        environment["PATH"] = f"{programs}:{environment['PATH']}"
        for setting in environment.get("LSAN_OPTIONS", "").split(":"):
            if setting.startswith("suppressions="):
                shutil.copy(setting.removeprefix("suppressions="), programs)
                copied = "suppressions=" + str(programs / pathlib.Path(setting).name)
                environment["LSAN_OPTIONS"] = environment["LSAN_OPTIONS"].replace(setting, copied)
        return environment

    def make_older_databases(self):
        version_1.make_file(self, "older.db")
        # It goes with its server, which soon lets in nobody but those of the guide.
        older = version_1.make_on_server(types.SimpleNamespace(addCleanup=lambda _: None))
        server.ask("postgres", f"ALTER DATABASE {older.name} RENAME TO older")

    def start_new_server(self):
        """The URI of a second server, which runs until the test ends."""
        process = subprocess.Popen([WITH_POSTGRES, "sh", "-c", "echo $FERROWIND_POSTGRES; read -r end"],
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

        def stop():
            with contextlib.suppress(BrokenPipeError):
                process.communicate("end\n", timeout=60)

        self.addCleanup(stop)
        return process.stdout.readline().strip()

    def carry(self, page):
        for of_page, sender, name, receiver, new_name in CARRIED:
            source = self.people[sender].home / name
            if of_page == page and source.exists() and not (self.people[receiver].home / new_name).exists():
                self.people[receiver].receive(source, new_name)

    def sessions(self):
        """How many connections to the calendars have ended."""
        output, _ = self.run_commands("postgres on the server", "psql -X -A -t -c \"SELECT sessions FROM pg_stat_database "
                                      "WHERE datname = 'calendars'\"")
        return int(output)

    def run_commands(self, person, commands, ends=lambda: False):
        """What the commands print, and their status, or None when `ends` told to end them. Whatever asks for a password on
        the terminal is told one."""
        process, screen = self.people[person].start(commands, self.environment)
        if ".pgpass" in commands:
            os.write(screen, PASSWORD_LINE.format("calendars", "anna").encode() + b"\x04")
        output, asked = b"", b""
        deadline = time.monotonic() + 60
        try:
            while True:
                self.assertLess(time.monotonic(), deadline, f"{commands}\ndoes not end: {output}{asked}")
                if process.poll() is None and ends():
                    os.killpg(process.pid, signal.SIGTERM)
                    process.wait(60)
                    return output.decode(), None
                ready = select.select([process.stdout, screen], [], [], 0.2)[0]
                if screen in ready:
                    with contextlib.suppress(OSError):
                        asked += os.read(screen, 65536)
                    if asked.endswith(b": "):
                        asked = b""
                        os.write(screen, f"{PASSWORD}\n".encode())
                if process.stdout in ready:
                    part = os.read(process.stdout.fileno(), 65536)
                    output += part
                    if not part:
                        return output.decode(), process.wait(60)
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
            process.stdout.close()
            os.close(screen)

    def follow(self, block):
        self.carry(block.page)
        if "\nferrowind " in block.commands:
            # It opens windows that stay. Having read the currencies and the calendars it has done what the guide says.
            before = self.sessions()
            output, status = self.run_commands(block.person, block.commands, lambda: self.sessions() >= before + 2)
            self.assertIsNone(status, f"{block.place}: the windows are gone: {output}")
            return
        output, status = self.run_commands(block.person, block.commands)
        self.assertEqual(status, block.status, f"{block.place}:\n{block.commands}\n{output}")
        if block.expected is not None and not guide.prints(block.expected, output):
            self.fail(f"{block.place}:\n{block.commands}\nprints\n{output}\ninstead of\n{block.expected}")
        self.assertNotIn("Sanitizer", output)
        self.assertNotIn(PASSWORD, output)

    def test_every_command_does_what_the_guide_says(self):
        followed = [block for page in guide.pages() for block in guide.blocks(page) if block.person not in LEFT_OUT]
        self.assertGreater(len(followed), 40)
        for block in followed:
            with self.subTest(block.place):
                self.follow(block)


class Reading(unittest.TestCase):

    def test_what_a_page_has(self):
        [block] = guide.blocks("a.md", "Text\n```sh\n# as anna on her machine\nls  # status 2\n```\n```text\nfiles\n```\n")
        self.assertEqual(block, guide.Block("a.md", 2, "anna on her machine", "# as anna on her machine\nls  # status 2\n", 2,
                                            "files\n"))
        with self.assertRaises(ValueError):
            guide.blocks("a.md", "```text\nfiles\n```\n")

    def test_what_output_is_expected(self):
        for expected, output, is_expected in [
                ("t\non\n", "t\non\n", True), ("t\non\n", "t\noff\n", False), ("on\n", "t\non\n", False),
                ("the ... is locked", "the file a.db is locked\n", True), ("the ... is locked", "the file\n", False),
                ("first\n...\nlast\n", "first\nsecond\nthird\nlast\n", True), ("...\nlast\n", "first\nlast\n", True),
                ("...\nlast\n", "last\n", True), ("a|...", "a|b", True), ("a|...", "c", False)]:
            with self.subTest(expected=expected, output=output):
                self.assertEqual(guide.prints(expected, output), is_expected)

    def test_all_pages_are_in_the_table_of_contents(self):
        self.assertEqual(sorted(guide.pages()), sorted(f"admin/{page.name}" for page in (guide.FOLDER / "admin").glob("*.md")))


if __name__ == "__main__":
    unittest.main()
