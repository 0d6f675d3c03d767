"""A program with a folder of its own for all that it leaves, of which nothing stays: neither a
process that it started nor the folder."""
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

PATIENCE = 60  # seconds for the processes to go
SHOWN_LINES = 12  # of what the program said, in a failure
POLL = 0.02
GONE = "ZX"  # states of a process that nobody has taken note of yet


class ProgramError(Exception):
    """It is not here, it has ended, or it does not go."""


def end_in_order(*_):
    sys.exit(128 + signal.SIGTERM)


class Program:
    """`folder` stands before the program runs; run() starts it, close() ends all."""

    def __init__(self, name):
        self.name = name
        # Who is asked to end does so by an exception, so that with statements are left.
        if threading.current_thread() is threading.main_thread() \
                and signal.getsignal(signal.SIGTERM) == signal.SIG_DFL:
            signal.signal(signal.SIGTERM, end_in_order)
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix=f"{name}-"))
        self.process = None

    def run(self, commands, arguments):
        """The first of the commands that is here, in a session and a home of its own."""
        command = next(filter(None, map(shutil.which, commands)), None)
        if command is None:
            raise ProgramError(f"{self.name} is not here: no {' or '.join(commands)}")
        environment = dict(os.environ)
        environment.pop("WAYLAND_DISPLAY", None)
        for name, folder in (("HOME", "home"), ("XDG_CONFIG_HOME", "config"), ("XDG_DATA_HOME", "data"),
                             ("XDG_CACHE_HOME", "cache"), ("TMPDIR", "tmp")):
            (self.folder / folder).mkdir()
            environment[name] = str(self.folder / folder)
        # No daemon of the desktop is started that would outlive the program.
        environment.update(DBUS_SESSION_BUS_ADDRESS="disabled:", NO_AT_BRIDGE="1",
                           GSETTINGS_BACKEND="memory", GTK_USE_PORTAL="0", LIBGL_ALWAYS_SOFTWARE="1",
                           LANG="C.UTF-8", LC_ALL="C.UTF-8", MOZ_CRASHREPORTER_DISABLE="1",
                           # Without it the address of settings that come over the net is fixed.
                           MOZ_REMOTE_SETTINGS_DEVTOOLS="1")
        with open(self.folder / "said", "wb") as said:
            self.process = subprocess.Popen([command, *arguments], env=environment, stdout=said, stderr=said,
                                            stdin=subprocess.DEVNULL, start_new_session=True)

    def wait_for_file(self, path, seconds, is_whole):
        """The text of a file that the program writes, once `is_whole` holds of it."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            self.check()
            text = path.read_text() if path.exists() else ""
            if is_whole(text):
                return text
            time.sleep(POLL)
        raise ProgramError(f"{self.name} has not written {path.name} in {seconds:g} s{self.last_words()}")

    def check(self):
        if self.process.poll() is not None:
            raise ProgramError(f"{self.name} has ended with {self.process.returncode}{self.last_words()}")

    def last_words(self):
        said = (self.folder / "said").read_text(errors="replace").splitlines()
        return "".join(f"\n    {line}" for line in said[-SHOWN_LINES:])

    def processes(self):
        """The numbers of all that run in its session, or in its home if they left the session."""
        if self.process is None:
            return []
        home = f"HOME={self.folder}/".encode()
        found = []
        for path in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                state, _, _, session = (path / "stat").read_text().rpartition(")")[2].split()[:4]
                is_ours = int(session) == self.process.pid or home in (path / "environ").read_bytes()
            except (OSError, ValueError):  # gone meanwhile, or another user's
                continue
            if is_ours and state not in GONE:
                found.append(int(path.name))
        return found

    def close(self):
        """Kills what is left: what it would write goes with the folder."""
        end = time.monotonic() + PATIENCE
        while self.process is not None:
            self.process.poll()
            left = self.processes()
            if not left:
                break
            if time.monotonic() > end:
                raise ProgramError(f"{self.name} does not go: {left}")
            for number in left:
                try:
                    os.kill(number, signal.SIGKILL)
                except ProcessLookupError:
                    pass
            time.sleep(POLL)
        if self.process is not None:
            self.process.wait()
        shutil.rmtree(self.folder)
