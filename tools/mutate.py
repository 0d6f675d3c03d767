#!/usr/bin/env python3
"""Changes the editor's logic one place at a time and looks whether the fast tests notice.

    tools/mutate.py                    all mutants of the sample; takes about an hour and a half
    tools/mutate.py --resume           goes on where it was interrupted
    tools/mutate.py --again            only those that survived the last time
    tools/mutate.py --only REGEX       only the files whose names it matches

Prints what each mutant met, then the score and the survivors; build-mutation/results.tsv keeps it for
the next call. Works on a copy of the tree in build-mutation. A mutant that does not compile, or whose machine code
is that of the original, is none and does not count. The others meet the unit tests beside their source;
what those do not notice meets, many mutants at once, all scenarios and all unit tests.
"""
import argparse
import concurrent.futures
import contextlib
import hashlib
import os
import pathlib
import queue
import re
import resource
import shutil
import signal
import subprocess
import sys
import threading
import time

from mutation.operators import count_code, mutants_of

ROOT = pathlib.Path(__file__).resolve().parent.parent
RESULTS = ROOT / "build-mutation/results.tsv"
FOLDERS = ("terrain", "views", "files", "games", "core")
LEFT_OUT = r"_table\.|^src/core/windows/"  # texts, and the places of controls
MOST_DEPENDENTS = 6  # a header that more sources include costs too much to build anew
COMMAND_SECONDS = 300
# Processor time of the unit tests beside a source, of all of them, and of a scenario: four times and
# more what they take.
NEAR_SECONDS, ALL_SECONDS, SCENARIO_SECONDS = 40, 120, 10
MEMORY = 6 << 30
GROUP = 12  # changes that meet all tests together


class Bench:
    """A copy of the tree with its build, where one mutant at a time is tried."""

    def __init__(self, number):
        self.tree = ROOT / "build-mutation" / f"tree{number}"
        self.build = self.tree / "build"
        self.scratch = self.tree / "build/scratch"
        self.killers = {}  # scenarios, by how often they were the first to fail
        self.environment = dict(os.environ, CCACHE_BASEDIR=str(self.tree), CCACHE_NOHASHDIR="1",
                                CCACHE_SLOPPINESS="pch_defines,time_macros",
                                GTEST_COLOR="no")

    def prepare(self):
        self.copy_tree()
        self.call(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DBUILD_TESTING=ON",
                   "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O2 -w",
                   "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"], check=True)
        self.scratch.mkdir(exist_ok=True)
        if not all(self.make(program, processes=2) for program in ("unit_tests", "scenario")):
            sys.exit("The tree does not build.")
        self.originals = self.objects()
        self.dependents = self.read_dependents()
        self.suites = self.read_suites()

    def copy_tree(self):
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, check=True,
                                capture_output=True, text=True).stdout.split("\n")
        for name in filter(None, listed):
            source, target = ROOT / name, self.tree / name
            if source.is_file() and not (
                    target.is_file() and target.read_bytes() == source.read_bytes()):
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(source, target)

    def call(self, command, seconds=COMMAND_SECONDS, **options):
        return subprocess.run(command, cwd=options.pop("cwd", self.tree), env=self.environment,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=seconds, text=True,
                              errors="replace", **options)

    def make(self, program, processes=1):
        return self.call(["ninja", "-C", self.build, f"-j{processes}", program],
                         seconds=3600).returncode == 0

    def objects(self):
        return {path: hashlib.sha256(path.read_bytes()).digest() for path in self.build.rglob("*.o")}

    def read_dependents(self):
        """Names of the sources of ours, each with the number of objects that are made of it."""
        found = {}
        said = self.call(["ninja", "-C", self.build, "-t", "deps"]).stdout
        for name in re.findall(r"^    (\S+)$", said, re.M):
            full = pathlib.Path(os.path.normpath(self.build / name))
            if full.is_relative_to(self.tree):
                name = full.relative_to(self.tree).as_posix()
                found[name] = found.get(name, 0) + 1
        return found

    def read_suites(self):
        """Folder and name of each file of unit tests, with the filter that runs its suites."""
        suites = {}
        for path in sorted((self.tree / "tests/unit").glob("*/**/*.cpp")):
            names = sorted(set(re.findall(r"^TEST(?:_[FP])?\((\w+),", path.read_text(), re.M)))
            suites[path.relative_to(self.tree / "tests/unit")] = [f"{name}.*" for name in names]
        return suites

    @contextlib.contextmanager
    def changed(self, mutants):
        """The tree with all of these changes in it; as before afterwards."""
        originals = {m.file: (self.tree / m.file).read_text() for m in mutants}
        for file, text in originals.items():
            lines = text.split("\n")
            for mutant in (m for m in mutants if m.file == file):
                for n in mutant.changed_lines(text):
                    lines[n] = mutant.lines[n]
            (self.tree / file).write_text("\n".join(lines))
        try:
            yield
        finally:
            for file, text in originals.items():
                (self.tree / file).write_text(text)

    def try_alone(self, mutant):
        """(outcome, first test that failed) with the unit tests next to the source."""
        with self.changed([mutant]):
            if not self.make("unit_tests"):
                return "no program", ""
            if self.objects() == self.originals:
                return "no change", ""
            failed = self.failing_unit(self.suites_beside(mutant.file), NEAR_SECONDS)
            return ("killed", failed) if failed else ("open", "")

    def suites_beside(self, file):
        """Those of the source's own test; without one, those of its folder."""
        place = pathlib.PurePosixPath(file).relative_to("src")
        own = [n for path, names in self.suites.items() for n in names
               if path.parent == place.parent and path.stem == f"test_{place.stem}"]
        return own or [n for path, names in self.suites.items() for n in names
                       if path.parent == place.parent]

    def first_failure(self, mutants):
        """The first of all the tests that fails with all of these changes together."""
        with self.changed(mutants):
            if not self.make("unit_tests"):
                return "no program"
            folders = {pathlib.PurePosixPath(m.file).relative_to("src").parent for m in mutants}
            near = [n for path, names in self.suites.items() for n in names
                    if path.parent in folders]
            return (self.failing_unit(near, ALL_SECONDS) or self.failing_scenario()
                    or self.failing_unit(["*"], ALL_SECONDS))

    def run_limited(self, command, seconds):
        """The finished run; one that sleeps for ever ends as one that counts for ever does."""
        def limit():
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
        try:
            return self.call(command, cwd=self.scratch, preexec_fn=limit)
        except subprocess.TimeoutExpired as late:
            said = (late.stdout or b"").decode(errors="replace")
            return subprocess.CompletedProcess(command, -signal.SIGKILL, said)

    def failing_unit(self, names, seconds):
        if not names:
            return ""
        ran = self.run_limited([self.build / "unit_tests", "--gtest_fail_fast",
                                "--gtest_filter=" + ":".join(names)], seconds)
        if ran.returncode == 0:
            return ""
        failed = re.search(r"\[  FAILED  \] ([\w.]+\w)", ran.stdout)
        if failed:
            return failed.group(1)
        running = (re.findall(r"\[ RUN      \] (\S+)", ran.stdout) or ["?"])[-1]
        end = {-signal.SIGXCPU: "endless", -signal.SIGKILL: "endless"}.get(ran.returncode, "crash")
        return f"{end}: {running}"

    def failing_scenario(self):
        folder = self.tree / "tests/scenarios"
        self.make("scenario")
        names = sorted((p.relative_to(folder).as_posix() for p in folder.rglob("*.txt")
                        if p.name != "CMakeLists.txt"), key=lambda n: (-self.killers.get(n, 0), n))
        for name in names:
            ran = self.run_limited(["cmake", f"-DTOOL={self.build}/scenario",
                                    f"-DFILE={folder}/{name}", f"-DSCRATCH={self.scratch}/{name}",
                                    "-P", folder / "run_scenario.cmake"], SCENARIO_SECONDS)
            if ran.returncode != 0:
                self.killers[name] = self.killers.get(name, 0) + 1
                return f"scenario {name}"
        return ""


def read_results(path):
    if not path.is_file():
        return []
    return [line.split("\t") for line in path.read_text().splitlines()[1:]]


def write_results(path, rows):
    path.parent.mkdir(exist_ok=True)
    rows = sorted(rows, key=lambda row: (row[1].split(":")[0], int(row[1].split(":")[1]), row[3]))
    head = "outcome\tplace\tkind\tchange\tfirst test that failed"
    path.write_text("\n".join([head] + ["\t".join(row) for row in rows]) + "\n")


def same(row):
    """What makes a mutant the same: its place and its change."""
    return row[1], row[3]


def quotas(count, dependents, only):
    """Number of mutants of each file, in proportion to its lines of code."""
    sizes = {}
    for folder in FOLDERS:
        for path in sorted((ROOT / "src" / folder).rglob("*")):
            name = path.relative_to(ROOT).as_posix()
            if path.suffix in (".h", ".cpp") and not re.search(LEFT_OUT, name):
                if 0 < dependents.get(name, 0) <= MOST_DEPENDENTS:
                    sizes[name] = count_code(path.read_text())
    total = sum(sizes.values())
    return {name: max(1, round(count * size / total)) for name, size in sizes.items()
            if re.search(only, name)}


class Sample:
    """The mutants that are tried, by several benches at once."""

    def __init__(self, options):
        self.options, self.lock = options, threading.Lock()
        self.rows = read_results(options.results)
        self.old = {same(row) for row in self.rows}
        if not options.again and not options.resume:
            self.rows = [row for row in self.rows if not re.search(options.only, row[1])]
        self.begun = time.monotonic()

    def add(self, mutant, outcome, why):
        row = [outcome] + mutant.row() + [why]
        with self.lock:
            self.rows = [r for r in self.rows if same(r) != same(row)] + [row]
            write_results(self.options.results, self.rows)
            minutes = (time.monotonic() - self.begun) / 60
            print(f"{minutes:5.1f} min  {outcome:9} {row[1]}  {row[3]}  {why}", flush=True)

    def try_file(self, benches, file, quota):
        """Each mutant of the file alone, until there are enough."""
        bench, tried = benches.get(), set()
        try:
            for mutant in mutants_of(file, (bench.tree / file).read_text(), self.options.seed):
                if len(tried) == quota:
                    break
                key = same([""] + mutant.row())
                if self.options.resume and key in self.old:
                    tried.add(key)
                    continue
                outcome, why = bench.try_alone(mutant)
                if outcome in ("killed", "open"):
                    tried.add(key)
                    self.add(mutant, outcome, why)
        finally:
            benches.put(bench)
        with self.lock:
            self.rows = [r for r in self.rows if r[1].split(":")[0] != file or same(r) in tried]
            write_results(self.options.results, self.rows)

    def open_mutants(self, bench):
        wanted = {same(row) for row in self.rows if row[0] == "open"}
        for file in sorted({place.split(":")[0] for place, _ in wanted}):
            for mutant in mutants_of(file, (bench.tree / file).read_text(), self.options.seed):
                if same([""] + mutant.row()) in wanted:
                    yield mutant

    def settle(self, bench, mutants):
        """All tests, many changes at once: where nothing fails, none of them is noticed."""
        failed = bench.first_failure(mutants) if mutants else ""
        if failed and len(mutants) > 1:
            middle = len(mutants) // 2
            self.settle(bench, mutants[:middle])
            self.settle(bench, mutants[middle:])
            return
        for mutant in mutants:
            self.add(mutant, "killed" if failed else "survived", failed)

    def settle_all(self, bench):
        rest = list(self.open_mutants(bench))
        while rest:
            group, lines = [], set()
            for mutant in rest:
                own = {(mutant.file, n)
                       for n in mutant.changed_lines((bench.tree / mutant.file).read_text())}
                if not own & lines and len(group) < GROUP:
                    group.append(mutant)
                    lines |= own
            self.settle(bench, group)
            rest = [mutant for mutant in rest if mutant not in group]

    def run(self):
        benches = queue.Queue()
        for number in range(self.options.jobs):
            bench = Bench(self.options.bench + number)
            bench.prepare()
            benches.put(bench)
        if self.options.again:
            self.rows = [["open"] + row[1:] if row[0] == "survived" else row for row in self.rows]
        else:
            wanted = quotas(self.options.count, bench.dependents, self.options.only)
            with concurrent.futures.ThreadPoolExecutor(self.options.jobs) as pool:
                tries = [pool.submit(self.try_file, benches, *item) for item in wanted.items()]
                for done in concurrent.futures.as_completed(tries):
                    if done.exception():
                        pool.shutdown(cancel_futures=True)
                    done.result()
        self.settle_all(bench)


def report(path):
    """Of each folder how many mutants died, and where the others are."""
    rows = read_results(path)
    print(f"{'folder':8} {'mutants':>8} {'dead':>5} {'survived':>9}")
    for folder in FOLDERS + ("",):
        own = [row for row in rows if row[1].startswith(f"src/{folder}")]
        dead = sum(row[0] == "killed" for row in own)
        print(f"{folder or 'all':8} {len(own):8} {dead:5} {len(own) - dead:9}")
    for row in rows:
        if row[0] != "killed":
            print(f"survived: {row[1]}  {row[3]}")


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=405)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--only", default="")
    parser.add_argument("--bench", type=int, default=0, help="number of its copy of the tree")
    parser.add_argument("--results", type=pathlib.Path, default=RESULTS)
    parser.add_argument("--resume", action="store_true")
    parser.add_argument("--again", action="store_true")
    options = parser.parse_args()
    Sample(options).run()
    report(options.results)


if __name__ == "__main__":
    main()
