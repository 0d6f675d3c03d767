#!/usr/bin/env python3
"""Does what docs/adding_a_tool.md says in a copy of the tree, builds the copy, and runs every unit
test and scenario in it. Says how many places in how many files of src the page touches.
    tools/try_adding_a_tool.py FOLDER     FOLDER is kept for the next time"""
import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs/adding_a_tool.md"
STEP = re.compile(
    r"(?:In\s+`(?P<file>[^`]+)`,\s+(?P<where>after|before)\s+`(?P<line>[^`]+)`"
    r"|New\s+file\s+\*\*(?P<new>[^*]+)\*\*):\n\n```\w*\n(?P<text>.*?)```\n", re.S)
MOST_PLACES, MOST_FILES = 6, 4


# What was built there last time stays.
def copy_tree(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for entry in folder.iterdir():
        if entry.name != "build":
            shutil.rmtree(entry) if entry.is_dir() else entry.unlink()
    listed = subprocess.run(
        ["git", "-C", ROOT, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        check=True, capture_output=True, text=True).stdout
    for name in filter(None, listed.split("\0")):
        if (ROOT / name).exists():
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / name, folder / name)


def insert(path, where, line, text):
    lines = path.read_text().splitlines(keepends=True)
    found = [i for i, one in enumerate(lines) if one.rstrip("\n") == line]
    if len(found) != 1:
        sys.exit(f"{path}: {len(found)} lines are \"{line}\", not one")
    at = found[0] + (1 if where == "after" else 0)
    path.write_text("".join(lines[:at]) + text + "".join(lines[at:]))


def apply(folder):
    places = []
    for step in STEP.finditer(PAGE.read_text()):
        if step["new"]:
            path = folder / step["new"]
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(step["text"])
        else:
            insert(folder / step["file"], step["where"], step["line"], step["text"])
            places.append(step["file"])
    files = len(set(places))
    print(f"{len(places)} places in {files} files", flush=True)
    if not places or len(places) > MOST_PLACES or files > MOST_FILES:
        sys.exit(f"more than {MOST_PLACES} places in {MOST_FILES} files")


# The scenarios that the page says are renewed.
def renewed():
    return re.findall(r"`tests/scenarios/(\w+/\w+\.txt)`[,.]", PAGE.read_text())


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1]).resolve()
    copy_tree(folder)
    apply(folder)
    build = folder / "build"
    for command in (
            ["cmake", "-S", folder, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
             "-DBUILD_TESTING=ON"],
            ["cmake", "--build", build, "--target", "unit_tests", "scenario"],
            ["ctest", "--test-dir", build, "-R", "^(unit|scenario)\\.", "-LE", "long", "-j4",
             "-E", "|".join(renewed()),
             "--output-on-failure"]):
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        if result.returncode:
            sys.exit(result.stdout[-6000:] + result.stderr[-2000:])
    print("with the tool every unit test and scenario but those named passes")


if __name__ == "__main__":
    main()
