#!/usr/bin/python3
"""The dear operations in a browser's machine next to the same on this one's own, in turn, and what
the page takes. Prints the table.

  web_table.py PROGRAM SCRIPT PAGE           the table
  web_table.py PROGRAM SCRIPT PAGE FILE      the same, and puts it into FILE between its two marks

PROGRAM and SCRIPT: time_operations as this machine's program and as node's; PAGE: the editor's file.
Without a screen, or what works a browser on it, the page's start and idling are left out."""
import importlib.util
import os
import pathlib
import subprocess
import sys

from speed_table import lay_out, machine, record, short, spell

ROUNDS, RUNS = 8, 12
MOST_TIMES = 3          # the page's time to the program's
MOST_BYTES = 2_000_000  # of the page
LATEST = 1000           # milliseconds until its first picture
FRAME = 1000 / 60       # milliseconds
MARKS = ("<!-- measured in a browser: begin -->", "<!-- measured in a browser: end -->")
DRIVER = pathlib.Path(__file__).resolve().parents[1] / "tests/web"


class Least:
    """The least of all runs of each operation, and the least of the first ones, in milliseconds."""

    def __init__(self, command):
        self.command, self.times, self.firsts = command, {}, {}

    def run(self):
        out = subprocess.run([*self.command, str(RUNS)], capture_output=True, text=True)
        if out.returncode != 0:
            sys.exit(f"{' '.join(self.command)}: {out.stderr[-500:]}")
        for line in out.stdout.splitlines():
            name, *figures = line.split()
            for kept, figure in zip((self.times, self.firsts), map(float, figures)):
                kept[name] = min(figure, kept.get(name, figure))


def target(is_met, most):
    return f"{'met' if is_met else 'MISSED'}: at most {most}"


def operations(program, script):
    native, web = Least([program]), Least(["node", script])
    for _ in range(ROUNDS):
        native.run()
        web.run()
    rows = [("What", "program", "page", "times", "page, the first time", "target")]
    for name, time in native.times.items():
        times = web.times[name] / time
        rows.append((name, spell(time * 1e3), spell(web.times[name] * 1e3), short(times),
                     spell(web.firsts[name] * 1e3),
                     target(times <= MOST_TIMES, f"{MOST_TIMES} times")))
    return rows


def page(path):
    size = pathlib.Path(path).stat().st_size
    rows = [("What", "figure", "target"),
            ("the file", f"{size:,} bytes", target(size <= MOST_BYTES, f"{MOST_BYTES:,}"))]
    sys.path.insert(0, str(DRIVER))
    if not os.environ.get("DISPLAY") or importlib.util.find_spec("browser") is None:
        print("left out: the page's start, stops and idling; there is no screen, or nothing to work a browser")
        return rows
    import web_page
    start, blind, idle, empty = web_page.measure(path)
    return rows + [("from the call of the page to its first picture, Chromium", f"{start:.0f} ms",
                    target(start <= LATEST, f"{LATEST} ms")),
                   ("longest time in a canyon before it sees a stop, Chromium", f"{blind:.1f} ms",
                    target(blind <= FRAME, f"{FRAME:.1f} ms, a frame")),
                   ("idle, share of a core, all of Chromium", f"{idle:.2f} %", ""),
                   ("the same with an empty page", f"{empty:.2f} %", "")]


def main():
    program, script, path = sys.argv[1:4]
    version = subprocess.run(["node", "--version"], capture_output=True, text=True, check=True).stdout
    text = (f"Machine: {machine()} node {version.strip()}.\n\n"
            f"{lay_out(operations(program, script))}\n\n{lay_out(page(path))}")
    print(text)
    if len(sys.argv) > 4:
        record(text, sys.argv[4], MARKS)
    print("\n{} figures miss their target.".format(text.count("MISSED")))


if __name__ == "__main__":
    main()
