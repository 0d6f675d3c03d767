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

ERRORS = (errno.ENOSPC, errno.EIO, errno.EROFS, errno.EACCES, errno.EDQUOT)
MAP_BYTES = 5498  # of a miniature map
LINE = re.compile(r"[^=\[\];#\x00-\x1f]+=[^=\[\];#\x00-\x1f]*")

FIRST_START = ["start 80"]
SAVE_MAP = ["start 80", "cell 3 4 200", "answer save {folder}/map.bmp", "click Form1.NTool(14)"]
ADD_SET = ["start 80", 'answer input "My set"', "click Form1.NTool(26)"]
CHANGE_OPTIONS = ["start 80", "press Form1.NTool(65) left 2 2", "release Form1.NTool(65) left 2 2",
                  "answer message no", "click Form1.NTool(17)"]


class Wrong(Exception):
    pass


class Desk:
    """A folder with a store and maps, and the editor that works in it."""

    def __init__(self, options):
        self.options = options
        self.scratch = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.scratch.name)
        self.home = self.folder / "home"
        self.home.mkdir()
        self.settings = self.home / "conf" / "settings.ini"

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
    desk = Desk(options)
    if before:
        good(desk.run(before))
    good(desk.run(lines))
    return desk.bytes_of(desk.settings), desk.bytes_of(desk.home / "map.bmp")


def sections(store):
    return set(re.findall(rb"(?m)^\[.*\]$", store or b""))


def one_fault(options, case, at, kind, lasts):
    lines, before = case["lines"], case["before"]
    desk = Desk(options)
    if before:
        good(desk.run(before))
    if case.get("empty_map"):
        (desk.home / "map.bmp").touch()
    old = desk.bytes_of(desk.settings), desk.bytes_of(desk.home / "map.bmp")
    new = case["expected"]
    result = desk.run(lines, at=at, kind=kind, lasts=lasts)
    is_killed = kind in ("kill", "killed")
    if is_killed != (result.returncode == -signal.SIGKILL):
        good(result)
    check_whole(desk.settings)
    now = desk.bytes_of(desk.settings), desk.bytes_of(desk.home / "map.bmp")
    # A start writes its defaults before the lines that follow, so the store may be on its way.
    if sections(old[0]) - sections(now[0]):
        raise Wrong(f"the store has lost {sorted(sections(old[0]) - sections(now[0]))}")
    if now[1] not in (old[1], new[1]) and not (is_killed and now[1] == b""):
        raise Wrong(f"a map of {len(now[1] or b'')} bytes")
    if not is_killed:
        check_rest(desk, set())
        if now != new and "told " not in result.stdout:
            raise Wrong("nothing was told: " + result.stdout)
    good(desk.run(lines))
    if (desk.bytes_of(desk.settings), desk.bytes_of(desk.home / "map.bmp")) != new:
        raise Wrong("the next start is not clean")
    check_rest(desk, set())


def every_point(options):
    cases = {
        "first start": {"lines": FIRST_START, "before": None},
        "saving a map": {"lines": SAVE_MAP, "before": FIRST_START},
        "saving over an empty file": {"lines": SAVE_MAP, "before": FIRST_START, "empty_map": True},
        "adding a colour set": {"lines": ADD_SET, "before": FIRST_START},
        "leaving with other options": {"lines": CHANGE_OPTIONS, "before": FIRST_START},
    }
    tried = 0
    for name, case in cases.items():
        case["expected"] = expected_of(options, case["lines"], case["before"])
        desk = Desk(options)
        if case["before"]:
            good(desk.run(case["before"]))
        if case.get("empty_map"):
            (desk.home / "map.bmp").touch()
        calls = desk.calls(case["lines"])
        errors = ERRORS[:1] if options.quick else ERRORS
        kinds = [*errors, errno.EINTR, "short", "kill", "killed"]
        for at, (call, _) in enumerate(calls, 1):
            for kind in kinds:
                if kind == errno.EINTR and call not in ("write", "fsync", "close"):
                    continue
                if kind in ("kill", "killed") and case.get("empty_map") and call == "write":
                    continue  # a file that was there is written in its place
                for lasts in (0, 1) if kind in ERRORS else (0,):
                    try:
                        one_fault(options, case, at, kind, lasts)
                    except Wrong as wrong:
                        raise Wrong(f"{name}, call {at} ({call}), {kind}, lasts {lasts}: {wrong}")
                    tried += 1
    return f"{tried} faults"


def check_flushed(steps, home):
    """The bytes are on the disk before they have their name, the name at the end."""
    written = max(i for i, (call, _) in enumerate(steps) if call == "write")
    named = max(i for i, step in enumerate(steps) if step == ("linkat", f"{home}/map.bmp"))
    if ("fsync", steps[written][1]) not in steps[written:named]:
        raise Wrong("the map is named before it is flushed")
    if ("fsync", f"{home}/") not in steps[named:]:
        raise Wrong("the folder is not flushed")


def flushed(options):
    """A map counts as saved when it is on the disk; if it cannot be put there, that is told."""
    desk = Desk(options)
    good(desk.run(FIRST_START))
    calls = desk.calls(SAVE_MAP)
    check_flushed([step for step in calls if "/conf/" not in step[1]], desk.home)
    tried = 0
    for at, (call, path) in enumerate(calls, 1):
        if call != "fsync" or "/conf/" in path:
            continue
        desk = Desk(options)
        good(desk.run(FIRST_START))
        result = good(desk.run(SAVE_MAP, at=at, kind=errno.EIO))
        if f"map.bmp\" could not be saved: {os.strerror(errno.EIO)}" not in result.stdout:
            raise Wrong(f"call {at} ({call} {path}): told {result.stdout!r}")
        if (desk.home / "map.bmp").exists():
            raise Wrong(f"call {at} ({call} {path}): the map is there")
        check_rest(desk, set())
        tried += 1
    return f"{tried} flushes"


def full_disk(options):
    """The disk takes so many bytes and no more; a limit of the process stands for it."""
    good_bytes = expected_of(options, SAVE_MAP, FIRST_START)
    tried = 0
    for limit in [*range(0, 12000, 499), 5497, 5498, 5499]:
        desk = Desk(options)
        good(desk.run(FIRST_START))
        old = desk.bytes_of(desk.settings)
        result = subprocess.run(
            [sys.executable, "-c",
             "import os, resource, signal, sys\n"
             "signal.signal(signal.SIGXFSZ, signal.SIG_IGN)\n"
             "resource.setrlimit(resource.RLIMIT_FSIZE, (int(sys.argv[1]),) * 2)\n"
             "os.execv(sys.argv[2], sys.argv[2:])",
             str(limit), *desk.command(SAVE_MAP)], capture_output=True, text=True, timeout=120)
        good(result)
        now = desk.bytes_of(desk.home / "map.bmp")
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
    desk = Desk(options)
    good(desk.run(FIRST_START))
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


GROUPS = {f.__name__: f for f in (every_point, flushed, full_disk, two_editors, locked_store, kills)}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--library", type=pathlib.Path, required=True)
    parser.add_argument("--kills", type=int, default=25)
    parser.add_argument("--quick", action="store_true", help="one kind of error alone")
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
