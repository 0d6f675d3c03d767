#!/usr/bin/env python3
"""Makes writing fail at every point, fills the disk, looks for each flush, lets two editors work at
once, locks the store and kills editors. Whatever was kept before must be there afterwards, no file
may be half, the user must be told, and the next start must be clean.

    faults.py --build FOLDER --library FILE [--kills N] [--quick] [GROUP ...]
"""
import argparse
import errno
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import time

QUICK_STRIDE = 5  # prime to the kinds of faults that a call is given, so that each is met
ERRORS = (errno.ENOSPC, errno.EIO, errno.EROFS, errno.EACCES, errno.EDQUOT)
MAP_BYTES = 5498  # of a miniature map
LINE = re.compile(r"[^=\[\];#\x00-\x1f]+=[^=\[\];#\x00-\x1f]*")

FIRST_START = ["start 80"]
SAVE_MAP = ["start 80", "cell 3 4 200", "answer save {folder}/map.bmp", "click Form1.NTool(14)"]
ADD_SET = ["start 80", 'answer input "My set"', "click Form1.NTool(26)"]
CHANGE_OPTIONS = ["start 80", "press Form1.NTool(65) left 2 2", "release Form1.NTool(65) left 2 2",
                  "answer message no", "click Form1.NTool(17)"]

# What a save that was killed may leave for the next one to take away.
PASSING = {".ombrelia-terrain-editor.saving", ".ombrelia-terrain-editor.saving2"}

# Calls that a file system may not know, by the way in which a map is saved on it.
WAYS = {
    "": "",
    ", no nameless files": "O_TMPFILE",
    ", linked": "O_TMPFILE renameat2",
    ", over an empty file of its own": "O_TMPFILE renameat2 linkat",
    ", no locks": "flock",
    ", in its place": "O_TMPFILE flock",
}


class Wrong(Exception):
    pass


class Desk:
    """A folder with a store and maps, and the editor that works in it. A map can be there, empty."""

    def __init__(self, options, before=None, empty_map=False):
        self.options = options
        self.scratch = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.scratch.name)
        self.home = self.folder / "home"
        self.home.mkdir()
        self.settings = self.home / "conf" / "settings.ini"
        self.map = self.home / "map.bmp"
        if before:
            good(self.run(before))
        if empty_map:
            self.map.touch(0o640)

    def script(self, lines, name="lines.txt"):
        path = self.folder / name
        path.write_text("".join(line.format(folder=self.home) + "\n" for line in lines))
        return path

    def command(self, lines, name="lines.txt"):
        return [str(self.options.build / "stored_scenario"), str(self.settings),
                str(self.script(lines, name))]

    def run(self, lines, **fault):
        environment = dict(os.environ)
        if fault:
            environment["LD_PRELOAD"] = str(self.options.library)
            environment["FAULT_FOLDER"] = str(self.home)
        environment.update({f"FAULT_{key.upper()}": str(value) for key, value in fault.items()})
        return subprocess.run(self.command(lines), env=environment, capture_output=True, text=True,
                              timeout=120)

    def calls(self, lines, **fault):
        """Each call that is counted, with its path."""
        log = self.folder / "calls.log"
        log.unlink(missing_ok=True)
        good(self.run(lines, at=0, log=log, **fault))
        return [tuple(line.split(" ", 2)[1:]) for line in log.read_text().splitlines()]

    def bytes_of(self, path):
        return path.read_bytes() if path.exists() else None


def good(result):
    if result.returncode != 0:
        raise Wrong(f"status {result.returncode}: {result.stdout[-300:]}{result.stderr[-300:]}")
    return result


def check_whole(settings):
    """A store that stands there is whole: sections and pairs alone."""
    if not settings.exists():
        return
    text = settings.read_text()
    for line in text.splitlines():
        if line and not re.fullmatch(r"\[[^\[\]]*\]", line) and not LINE.fullmatch(line):
            raise Wrong(f"the store has the line {line!r}")
    if not text.endswith("\n\n"):
        raise Wrong("the store ends in the middle")


def check_rest(desk, known):
    """Nothing stands beside what is known."""
    names = {str(p.relative_to(desk.home)) for p in desk.home.rglob("*") if p.is_file()}
    rest = names - known - {"conf/settings.ini", "conf/settings.ini.lock", "map.bmp"}
    if rest:
        raise Wrong(f"left behind: {sorted(rest)}")


def expected_of(options, lines, before):
    """What store and map are when nothing fails."""
    desk = Desk(options, before)
    good(desk.run(lines))
    return desk.bytes_of(desk.settings), desk.bytes_of(desk.map)


def sections(store):
    return set(re.findall(rb"(?m)^\[.*\]$", store or b""))


def one_fault(options, case, at, kind, lasts):
    lines, refuse = case["lines"], case.get("refuse", "")
    desk = Desk(options, case["before"], case.get("empty_map"))
    old = desk.bytes_of(desk.settings), desk.bytes_of(desk.map)
    new = case["expected"]
    result = desk.run(lines, at=at, kind=kind, lasts=lasts, refuse=refuse)
    is_killed = kind in ("kill", "killed")
    if is_killed != (result.returncode == -signal.SIGKILL):
        good(result)
    check_whole(desk.settings)
    now = desk.bytes_of(desk.settings), desk.bytes_of(desk.map)
    # A start writes its defaults before the lines that follow, so the store may be on its way.
    if sections(old[0]) - sections(now[0]):
        raise Wrong(f"the store has lost {sorted(sections(old[0]) - sections(now[0]))}")
    claims = "linkat" in refuse or "flock" in refuse  # the name, before the map stands in it
    if now[1] not in (old[1], new[1]) and not (is_killed and claims and now[1] == b""):
        raise Wrong(f"a map of {len(now[1] or b'')} bytes")
    if is_killed:
        check_rest(desk, PASSING | {"conf/settings.ini.new"})
    else:
        check_rest(desk, set())
        if now != new and "told " not in result.stdout:
            raise Wrong("nothing was told: " + result.stdout)
    good(desk.run(lines, at=0, refuse=refuse))
    if (desk.bytes_of(desk.settings), desk.bytes_of(desk.map)) != new:
        raise Wrong("the next start is not clean")
    if case.get("empty_map") and desk.map.stat().st_mode & 0o777 != 0o640:
        raise Wrong(f"the map has the mode {desk.map.stat().st_mode:o}")
    check_rest(desk, set())


def every_point(options):
    cases = {
        "first start": {"lines": FIRST_START, "before": None},
        "saving a map": {"lines": SAVE_MAP, "before": FIRST_START},
        "adding a colour set": {"lines": ADD_SET, "before": FIRST_START},
        "leaving with other options": {"lines": CHANGE_OPTIONS, "before": FIRST_START},
    }
    return f"{every_point_of(options, cases)} faults"


def every_save(options):
    """The calls of a save alone, in every way that a file system allows."""
    cases = {}
    for way, refuse in WAYS.items():
        case = {"lines": SAVE_MAP, "before": FIRST_START, "refuse": refuse, "save_alone": True}
        cases["a new file" + way] = case
        cases["an empty file" + way] = case | {"empty_map": True}
    return f"{every_point_of(options, cases)} faults"


def fits(kind, call, is_quick):
    """Whether this can happen to a call."""
    if kind == errno.EINTR:
        return call in ("write", "fsync", "close")
    if kind == "short":
        return call in ("read", "write")
    if kind == "kill" and is_quick:
        return call == "write"  # in front of another it is the kill behind the one before
    return call != "unlink" or kind in ("kill", "killed")


def every_point_of(options, cases):
    met = tried = 0
    for name, case in cases.items():
        case["expected"] = expected_of(options, case["lines"], case["before"])
        desk = Desk(options, case["before"], case.get("empty_map"))
        refuse = case.get("refuse", "")
        calls = desk.calls(case["lines"], refuse=refuse)
        errors = ERRORS[:1] if options.quick else ERRORS
        kinds = [*errors, errno.EINTR, "short", "kill", "killed"]
        for at, (call, path) in enumerate(calls, 1):
            if case.get("save_alone") and "/conf/" in path:
                continue
            for kind in kinds:
                if not fits(kind, call, options.quick):
                    continue
                if kind == "kill" and path.endswith("map.bmp") and call == "write":
                    continue  # without locks it is written in its place
                for lasts in (0, 1) if kind in ERRORS else (0,):
                    met += 1
                    if options.quick and met % QUICK_STRIDE:
                        continue
                    try:
                        one_fault(options, case, at, kind, lasts)
                    except Wrong as wrong:
                        raise Wrong(f"{name}, call {at} ({call}), {kind}, lasts {lasts}: {wrong}")
                    tried += 1
    return tried


def never_replaced(options):
    """Another program writes the map while it is saved: what it wrote stays as it is."""
    tried = 0
    for way, refuse in WAYS.items():
        for empty_map in (False, True):
            if "flock" in refuse:
                continue  # an empty file is written in its place
            desk = Desk(options, FIRST_START, empty_map)
            calls = desk.calls(SAVE_MAP, refuse=refuse)
            named = max(at for at, (call, path) in enumerate(calls, 1) if path == str(desk.map)
                        and call in ("linkat", "renameat2", "rename"))
            if calls[named - 1][0] == "rename":  # replaces; the look at the name is before it
                named = max(at for at in range(1, named) if calls[at - 1][0] == "fsync")
            for at in range(1, named + 1):
                if "/conf/" in calls[at - 1][1]:
                    continue
                desk = Desk(options, FIRST_START, empty_map)
                good(desk.run(SAVE_MAP, at=at, kind="other", other=desk.map, refuse=refuse))
                if desk.bytes_of(desk.map) != b"other":
                    raise Wrong(f"{'an empty' if empty_map else 'a new'} file{way}, "
                                f"call {at} {calls[at - 1]}: what another program wrote is lost")
                check_rest(desk, set())
                tried += 1
    return f"{tried} moments"


def true_reasons(options):
    """A folder of settings that cannot be made: what is told is why, not that it is missing."""
    for error in (errno.EROFS, errno.EACCES, errno.ENOSPC, errno.EDQUOT):
        desk = Desk(options)
        calls = desk.calls(FIRST_START)
        at = 1 + [call for call, _ in calls].index("mkdir")
        desk = Desk(options)
        told = good(desk.run(FIRST_START, at=at, kind=error)).stdout
        if f'settings.ini": {os.strerror(error)}.' not in told:
            raise Wrong(f"for {os.strerror(error)!r} is told {told!r}")
        if os.strerror(errno.ENOENT) in told:
            raise Wrong(f"beside {os.strerror(error)!r} is told {told!r}")
    return "4 reasons"


def check_flushed(steps, desk):
    """The bytes are on the disk before they have their name, the name at the end."""
    written = max(i for i, (call, _) in enumerate(steps) if call == "write")
    named = max((i for i, (call, path) in enumerate(steps)
                 if call in ("linkat", "renameat2", "rename") and path == str(desk.map)),
                default=written + 2)
    if ("fsync", steps[written][1]) not in steps[written:named]:
        raise Wrong("the map is named before it is flushed")
    if ("fsync", f"{desk.home}/") not in steps[named:]:
        raise Wrong("the folder is not flushed")


def one_failing_flush(options, at, refuse, empty_map):
    desk = Desk(options, FIRST_START, empty_map)
    before = desk.bytes_of(desk.map)
    result = good(desk.run(SAVE_MAP, at=at, kind=errno.EIO, refuse=refuse))
    if f'map.bmp" could not be saved: {os.strerror(errno.EIO)}' not in result.stdout:
        raise Wrong(f"call {at}: told {result.stdout!r}")
    if desk.bytes_of(desk.map) != before:
        raise Wrong(f"call {at}: the map is another")
    check_rest(desk, set())


def flushed(options):
    """A map counts as saved when it is on the disk; if it cannot be put there, that is told."""
    tried = 0
    for way, refuse in WAYS.items():
        for empty_map in (False, True):
            desk = Desk(options, FIRST_START, empty_map)
            calls = desk.calls(SAVE_MAP, refuse=refuse)
            try:
                check_flushed([step for step in calls if "/conf/" not in step[1]], desk)
                for at, (call, path) in enumerate(calls, 1):
                    if call == "fsync" and "/conf/" not in path:
                        one_failing_flush(options, at, refuse, empty_map)
                        tried += 1
            except Wrong as wrong:
                raise Wrong(f"{'an empty' if empty_map else 'a new'} file{way}: {wrong}")
    return f"{tried} flushes"


def full_disk(options):
    """The disk takes so many bytes and no more; a limit of the process stands for it."""
    good_bytes = expected_of(options, SAVE_MAP, FIRST_START)
    tried = 0
    for limit in [*range(0, 12000, 499), 5497, 5498, 5499]:
        desk = Desk(options, FIRST_START)
        old = desk.bytes_of(desk.settings)
        result = subprocess.run(
            [sys.executable, "-c",
             "import os, resource, signal, sys\n"
             "signal.signal(signal.SIGXFSZ, signal.SIG_IGN)\n"
             "resource.setrlimit(resource.RLIMIT_FSIZE, (int(sys.argv[1]),) * 2)\n"
             "os.execv(sys.argv[2], sys.argv[2:])",
             str(limit), *desk.command(SAVE_MAP)], capture_output=True, text=True, timeout=120)
        good(result)
        now = desk.bytes_of(desk.map)
        if now is not None and now != good_bytes[1]:
            raise Wrong(f"limit {limit}: a map of {len(now)} bytes")
        if (now is None) != (limit < MAP_BYTES) or (now is None) != ("map.bmp" in result.stdout):
            raise Wrong(f"limit {limit}: {result.stdout}")
        check_whole(desk.settings)
        if desk.bytes_of(desk.settings) not in (old, good_bytes[0]):
            raise Wrong(f"limit {limit}: the store changed")
        check_rest(desk, set())
        tried += 1
    return f"{tried} sizes"


def set_lines(who, count):
    lines = ["start 80"]
    for n in range(count):
        lines += [f'answer input "{who} {n}"', "click Form1.NTool(26)"]
    return lines


def two_editors(options):
    """Both add colour sets at once; each set is there whole afterwards."""
    count = 60
    desk = Desk(options)
    editors = [subprocess.Popen(desk.command(set_lines(who, count), who),
                                stdout=subprocess.DEVNULL) for who in ("left", "right")]
    for editor in editors:
        if editor.wait(120) != 0:
            raise Wrong(f"an editor ended with {editor.returncode}")
    check_whole(desk.settings)
    text = desk.settings.read_text()
    for who in ("left", "right"):
        for n in range(count):
            section = text.split(f"[ColorPal{who} {n}]\n")
            if len(section) != 2 or len(section[1].split("\n\n")[0].splitlines()) != 48:
                raise Wrong(f"the set {who} {n} is not whole")
    check_rest(desk, set())
    return f"{2 * count} sets"


def locked_store(options):
    """Another process holds the store: the editor goes on, says so, and keeps its changes."""
    desk = Desk(options, FIRST_START)
    holder = subprocess.Popen(["flock", "--no-fork", f"{desk.settings}.lock", "sleep", "600"])
    time.sleep(0.3)
    try:
        began = time.monotonic()
        result = good(desk.run(ADD_SET))
        took = time.monotonic() - began
    finally:
        holder.kill()
        holder.wait()
    if took > 20:
        raise Wrong(f"the editor stood still for {took:.0f} s")
    if "told " not in result.stdout:
        raise Wrong("nothing was told")
    check_whole(desk.settings)
    good(desk.run(ADD_SET))
    if "[ColorPalMy set]" not in desk.settings.read_text():
        raise Wrong("the store stays locked")
    return f"went on within {took:.1f} s"


def kept_sets(output, lines):
    """The sets that the editor said to have on the disk."""
    kept = {int(line.split()[1]) for line in output.splitlines() if line.startswith("kept ")}
    last = max(kept, default=0)
    return [line.split('"')[1] for line in lines[:last - 1] if line.startswith("answer input")
            and lines.index(line) + 2 <= last]


def kills(options):
    """Editors killed at random moments, again and again on the same store."""
    desk = Desk(options)
    rng = random.Random(20261121)
    sets, maps = set(), 0
    for n in range(options.kills):
        lines = ["start 80"]
        for k in range(40):
            lines += [f'answer input "{n} {k % 5}"', "click Form1.NTool(26)",
                      f"answer save {{folder}}/map_{n}_{k}.bmp", "click Form1.NTool(14)"]
        editor = subprocess.Popen(desk.command(lines), stdout=subprocess.PIPE, text=True)
        time.sleep(rng.uniform(0, 0.12))
        editor.kill()
        output = editor.communicate()[0]
        sets |= set(kept_sets(output, lines))
        check_whole(desk.settings)
        text = desk.settings.read_text() if desk.settings.exists() else ""
        for name in sets:
            if f"[ColorPal{name}]" not in text:
                raise Wrong(f"kill {n}: the set {name!r} was kept and is lost")
        for path in desk.home.glob("map_*.bmp"):
            if path.stat().st_size != MAP_BYTES:
                raise Wrong(f"kill {n}: {path.name} has {path.stat().st_size} bytes")
            path.unlink()
            maps += 1
        if n % 20 == 19:
            good(desk.run(FIRST_START))
            check_rest(desk, set())
    good(desk.run(FIRST_START))
    check_rest(desk, set())
    return f"{options.kills} kills, {len(sets)} sets and {maps} maps kept"


GROUPS = {f.__name__: f for f in (every_point, every_save, never_replaced, flushed,
                                  true_reasons, full_disk, two_editors, locked_store, kills)}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--library", type=pathlib.Path, required=True)
    parser.add_argument("--kills", type=int, default=25)
    parser.add_argument("--quick", action="store_true", help="a fifth of the faults, one kind of error alone")
    parser.add_argument("groups", nargs="*", default=list(GROUPS))
    options = parser.parse_args()
    failed = 0
    for name in options.groups or GROUPS:
        try:
            print(f"{name}: {GROUPS[name](options)}", flush=True)
        except Wrong as wrong:
            print(f"{name}: WRONG: {wrong}", flush=True)
            failed = 1
    return failed


if __name__ == "__main__":
    sys.exit(main())
