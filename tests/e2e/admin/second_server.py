"""What may stand beside the PostgreSQL server that tools/with_postgres.sh started: a standby of it, a pool in front of it."""

import contextlib
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import time

import server

# The folder of the server, in which its user may write and which goes with it.
FOLDER = pathlib.Path(os.environ["FERROWIND_POSTGRES_CONTROL"]).parent
# Neither the server nor the pool runs as root.
AS_SERVER = ["runuser", "-u", "postgres", "--"] if os.getuid() == 0 else []
STARTS_IN = 60


def program(name):
    """The path of one of the server's own programs, of its newest version."""
    folders = sorted(pathlib.Path("/usr/lib/postgresql").glob("*/bin"), key=lambda folder: float(folder.parent.name))
    return str(folders[-1] / name) if folders else shutil.which(name)


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


def write(path, text):
    """Writes a file that belongs to the server's user."""
    subprocess.run([*AS_SERVER, "tee", str(path)], input=text, text=True, stdout=subprocess.DEVNULL, check=True)


def wait_until(condition, what):
    deadline = time.monotonic() + STARTS_IN
    while not condition():
        if time.monotonic() > deadline:
            raise AssertionError(f"{what} did not come about")
        time.sleep(0.05)


def primary_port():
    return server.uri("postgres").rsplit(":", 1)[1].split("/")[0]


def signal_primary(number):
    """To the server and to all its processes."""
    main = int((FOLDER / "data" / "postmaster.pid").read_text().split()[0])
    # First the one that starts the others. They end whenever their client or their work has ended, also just now.
    os.kill(main, number)
    for process in pathlib.Path(f"/proc/{main}/task/{main}/children").read_text().split():
        with contextlib.suppress(ProcessLookupError):
            os.kill(int(process), number)


def stop_primary_silently(test):
    """It answers nobody, as if its machine had died, until the end of the test or `signal_primary(SIGCONT)`."""
    signal_primary(signal.SIGSTOP)
    test.addCleanup(signal_primary, signal.SIGCONT)


@contextlib.contextmanager
def silent_primary():
    """It answers nobody, as if its machine had died, meanwhile."""
    signal_primary(signal.SIGSTOP)
    try:
        yield
    finally:
        signal_primary(signal.SIGCONT)


class Standby:
    """A standby whose confirmation the server waits for, until the end of a test."""

    def __init__(self, test):
        self.port = str(free_port())
        self.folder = FOLDER / f"standby{self.port}"
        source = server.uri("postgres") + "?application_name=second"
        subprocess.run([*AS_SERVER, program("pg_basebackup"), "-D", str(self.folder), "-d", source, "-R", "--checkpoint=fast",
                        "--no-sync"], check=True, timeout=STARTS_IN, cwd="/", stderr=subprocess.PIPE)
        settings = (self.folder / "postgresql.conf").read_text()
        write(self.folder / "postgresql.conf", f"{settings}\nport = {self.port}\n")
        self._control("-l", f"{self.folder}.log", "start")
        test.addCleanup(self._control, "-m", "immediate", "stop")
        server.ask("postgres", "ALTER SYSTEM SET synchronous_standby_names = 'second'")
        test.addCleanup(self._release_primary)
        server.ask("postgres", "SELECT pg_reload_conf()")
        wait_until(lambda: server.ask("postgres", "SELECT sync_state FROM pg_stat_replication") == "sync", "the standby")

    def promote(self):
        self._control("promote")

    def uri(self, uri):
        """The URI with this server behind the primary, of which the one that takes changes is meant."""
        port = primary_port()
        both = uri.replace(f"127.0.0.1:{port}", f"127.0.0.1:{port},127.0.0.1:{self.port}")
        return f"{both}?target_session_attrs=read-write"

    def uri_alone(self, uri):
        return uri.replace(f":{primary_port()}/", f":{self.port}/")

    def _control(self, *arguments):
        subprocess.run([*AS_SERVER, program("pg_ctl"), "-D", str(self.folder), "-s", "-w", "-t", str(STARTS_IN), *arguments],
                       check=True, timeout=STARTS_IN, cwd="/")

    @staticmethod
    def _release_primary():
        server.ask("postgres", "ALTER SYSTEM RESET synchronous_standby_names")
        server.ask("postgres", "SELECT pg_reload_conf()")


class Pool:
    """A pool in front of the server, which the superuser and the given logins may use until the end of a test."""

    def __init__(self, test, mode, logins, **settings):
        self._paused = None
        self.port = str(free_port())
        self.folder = FOLDER / f"pool{self.port}"
        subprocess.run([*AS_SERVER, "mkdir", str(self.folder)], check=True)
        users = "".join(f'"{name}" "{password}"\n' for name, password in {**logins, "postgres": server.password()}.items())
        write(self.folder / "users.txt", users)
        settings = {"listen_addr": "127.0.0.1", "listen_port": self.port, "unix_socket_dir": "", "auth_type": "scram-sha-256",
                    "auth_file": self.folder / "users.txt", "pidfile": self.folder / "pid", "pool_mode": mode, "default_pool_size": 2, **settings}
        lines = "".join(f"{key} = {value}\n" for key, value in settings.items())
        write(self.folder / "pool.ini", f"[databases]\n* = host=127.0.0.1 port={primary_port()}\n[pgbouncer]\n{lines}")
        command = shutil.which("pgbouncer", path=f"{os.environ['PATH']}:/usr/sbin")
        self.log = open(self.folder.with_suffix(".log"), "wb")
        test.addCleanup(self.log.close)
        self.process = subprocess.Popen([*AS_SERVER, command, str(self.folder / "pool.ini")], cwd="/", stdout=self.log,
                                        stderr=self.log)
        test.addCleanup(self._end)
        wait_until(self._is_listening, "the pool")

    def uri(self, uri):
        """The URI by way of the pool."""
        return uri.replace(f":{primary_port()}/", f":{self.port}/")

    def pause(self):
        """It answers nobody until the end of the test."""
        process = int((self.folder / "pid").read_text())
        os.kill(process, signal.SIGSTOP)
        self._paused = process

    def _is_listening(self):
        with socket.socket() as client:
            return client.connect_ex(("127.0.0.1", int(self.port))) == 0

    def _end(self):
        if self._paused:
            # It keeps nothing that would have to be put away.
            os.kill(self._paused, signal.SIGKILL)
        self.process.terminate()
        wait_until(self._has_ended, "the end of the pool")

    def _has_ended(self):
        # What runs it as another user stops with it, and may notice only now that it had.
        self.process.send_signal(signal.SIGCONT)
        return self.process.poll() is not None
