#!/usr/bin/env python3
"""Kills the real program while it saves a map or keeps a colour set, on a screen of 1000 x 560:

    killed_editor.py EDITOR KILLS [SEED]

By mouse and keys of the X server; the kill comes at a random moment behind the last key, or at once
when the program says that it is done. Afterwards the map is whole or not there, the settings are
whole, and what was done is there."""
import pathlib
import random
import subprocess
import sys
import tempfile
import time

import worked_editor
import x_monkey

LONGEST = 0.025  # seconds from the last key to the kill
DONE = 0.3  # how often the program may finish first
DIGITS = "0123456789"


def sections(path):
    found, name = {}, None
    for line in path.read_text().splitlines():
        if line.startswith("["):
            name = line[1:-1]
            found[name] = {}
        elif line:
            key, value = line.split("=", 1)
            found[name][key] = value
    return found


class Witness:
    """What the program has kept, and whether it is still there."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.whole = None  # the bytes of every map that is saved here
        self.sets = set()
        self.outcomes = {"done": 0, "before": 0, "behind": 0, "left a passing file": 0}

    def settings(self):
        return next(self.folder.rglob("*.ini"))

    def maps(self):
        return self.folder / "<img src=x> & zero>"

    def look_at_map(self, name, is_done):
        path = self.maps() / name
        passing = list(self.maps().glob(".ombrelia*"))
        if not path.exists():
            if is_done:
                raise x_monkey.Wrong(f"map {name} was saved and is not there")
            self.outcomes["left a passing file" if passing else "before"] += 1
            return
        content = path.read_bytes()
        self.whole = self.whole or content
        if content != self.whole:
            raise x_monkey.Wrong(f"map {name} is half: {len(content)} bytes")
        self.outcomes["done" if is_done else "behind"] += 1
        path.unlink()

    def look_at_sets(self, name, is_done):
        found = sections(self.settings())
        sets = {key.removeprefix("ColorPal"): values for key, values in found.items()
                if key.startswith("ColorPal")}
        lost = self.sets - set(sets)
        if lost or (is_done and name not in sets):
            raise x_monkey.Wrong(f"colour sets were lost: {lost or name}")
        half = [key for key, values in sets.items() if len(values) != len(sets["Default"])]
        if half:
            raise x_monkey.Wrong(f"colour sets are half: {half}")
        self.outcomes["done" if is_done else "behind" if name in sets else "before"] += 1
        if name in sets:
            self.sets.add(name)


def main():
    path, kills = sys.argv[1], int(sys.argv[2])
    chance = random.Random(int(sys.argv[3]) if len(sys.argv) > 3 else 1)
    screen = x_monkey.Screen()
    with tempfile.TemporaryDirectory() as folder:
        witness = Witness(folder)
        for n in range(kills):
            name = "s" + "".join(chance.choice(DIGITS) for _ in range(6))
            is_map, is_done = chance.random() < 0.5, n < 2 or chance.random() < DONE
            life = worked_editor.Life(path, folder, screen)
            try:
                (life.save if is_map else life.keep_set)(name)
                if is_done:
                    life.wait_until_done()
                else:
                    time.sleep(chance.random() * LONGEST)
            finally:
                life.editor.end()
            try:
                (witness.look_at_map if is_map else witness.look_at_sets)(name, is_done)
            except x_monkey.Wrong as wrong:
                print(f"kill {n + 1}: {wrong}")
                subprocess.run(["ls", "-la", witness.maps()], check=False)
                return 1
    print(f"{kills} kills: " + ", ".join(f"{count} {what}" for what, count in
                                         witness.outcomes.items()))
    return 0


if __name__ == "__main__":
    sys.exit(main())
