#!/usr/bin/env python3
"""Hours of use of the real program in one life, on a screen of 1000 x 560, without what a user waits
between two deeds; then its memory, open files and threads are what they were after the first hour:

    long_day.py EDITOR [HOURS]"""
import os
import pathlib
import sys
import tempfile

import worked_editor as places
import x_monkey

ROUNDS_OF_HOUR = 40  # of thirteen deeds each: one in seven seconds
DIALOGS_OF_ROUND = 2  # for files, of which the toolkit keeps a little
MOST_OF_DIALOG = 2  # KiB


def work(life, folder):
    done = life.wait_until_done
    for deed in (
            lambda: (life.click(places.FRACTAL), life.click(places.GENERATE)),
            lambda: (life.click(places.PENCIL), life.drag_on_map([(30, 40), (90, 70), (200, 220)])),
            lambda: (life.click(places.MOUNTAIN), life.drag_on_map([(120, 130)])),
            lambda: (life.click(places.CANYON), life.drag_on_map([(10, 10), (90, 60), (240, 250)])),
            lambda: (life.click(places.PLAIN), life.drag_on_map([(70, 90)])),
            lambda: (life.click(places.PERSPECTIVE), life.click(places.DRAW_3D)),
            lambda: life.drag_on_map([(50, 50), (80, 70)]),
            lambda: life.click(places.FROM_ABOVE),
            lambda: life.save("m17"),
            lambda: life.import_map("m17"),
            lambda: life.keep_set("s1"),
            life.look_at_help,
            life.new_map):
        deed()
        done()
    (folder / "m17").unlink()


def measure(editor):
    """What it holds, but for memory that is free inside it."""
    editor.look("settle")
    here = pathlib.Path("/proc", str(editor.process.pid))
    pages = int((here / "statm").read_text().split()[1])
    return {"KiB": pages * 4, "files": len(os.listdir(here / "fd")),
            "threads": len(os.listdir(here / "task"))}


def main():
    path, hours = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 8
    found = []
    with tempfile.TemporaryDirectory() as home:
        life = places.Life(path, home, x_monkey.Screen())
        try:
            folder = pathlib.Path(os.readlink(f"/proc/{life.editor.process.pid}/cwd"))
            for hour in range(hours):
                for _ in range(ROUNDS_OF_HOUR):
                    work(life, folder)
                found.append(measure(life.editor))
                print(f"hour {hour + 1}: " + ", ".join(f"{n} {what}" for what, n in found[-1].items()),
                      flush=True)
        finally:
            life.editor.end()
    settled, last = found[min(1, hours - 1)], found[-1]
    grown = [what for what in ("files", "threads") if last[what] > settled[what]]
    dialogs = max(0, hours - 2) * ROUNDS_OF_HOUR * DIALOGS_OF_ROUND
    if last["KiB"] > settled["KiB"] + MOST_OF_DIALOG * dialogs:
        grown.append("memory")
    if grown:
        print("grown: " + ", ".join(grown))
    return 1 if grown else 0


if __name__ == "__main__":
    sys.exit(main())
