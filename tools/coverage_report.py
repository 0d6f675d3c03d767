#!/usr/bin/env python3
"""Lines and branches that the tests run, from what llvm-cov exports.

    tools/coverage_report.py SHARE FILE
                each stretch of lines that never runs, then the table by folder; SHARE is "logic" for
                what stands behind no screen, "screen" for the toolkit's back end

tests/coverage/reasons.tsv names each of those: file, the text of its first line, why no test runs it.
Fails where fewer lines ran than the share's target, and at a stretch of the logic without a reason; what
real windows run differs a little each time, so that there it is only told.
"""
import json
import os
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
REASONS = ROOT / "tests/coverage/reasons.tsv"
FOLDERS = ("desk", "core/windows", "core", "terrain", "files", "views", "panels", "games",
           "app", "platform/qt", "platform")
TARGETS = {"logic": 98.0, "screen": 95.0}


def runs_by_line(segments, last_line):
    """How often each line runs: the most of the regions on it; None where there is no code."""
    runs, current = [None] * (last_line + 2), None
    by_line = {}
    for line, column, count, has_count, is_entry, is_gap in segments:
        by_line.setdefault(line, []).append((column, count, has_count, is_entry, is_gap))
    for line in range(1, last_line + 1):
        here = by_line.get(line, [])
        entries = [count for _, count, has_count, is_entry, is_gap in here
                   if has_count and is_entry and not is_gap]
        wrapped = current[0] if current and current[1] and not current[2] else None
        found = entries + ([wrapped] if wrapped is not None else [])
        starts_skipped = here and not here[0][2] and here[0][3]
        if found and not starts_skipped:
            runs[line] = max(found)
        if here:
            _, count, has_count, _, is_gap = here[-1]
            current = (count, has_count, is_gap)
    return runs


def read_reasons():
    if not REASONS.is_file():
        return {}
    rows = [line.split("\t") for line in REASONS.read_text().splitlines() if line[:1] != "#"]
    return {(row[0], row[1]): row[2] for row in rows}


def files_of(share, path):
    for entry in json.loads(pathlib.Path(path).read_text())["data"][0]["files"]:
        name = pathlib.PurePosixPath(os.path.normpath(entry["filename"]))
        if name.is_relative_to(ROOT / "src"):
            name = name.relative_to(ROOT / "src").as_posix()
            is_screen = name.startswith("platform/qt/")
            if not name.startswith("platform/headless/") and is_screen == (share == "screen"):
                yield name, entry


def blocks(runs):
    """First and last line of each stretch that never runs."""
    first = None
    for number, run in enumerate(runs + [1]):
        if run == 0 and first is None:
            first = number
        elif run != 0 and first is not None:
            yield first, number - 1
            first = None


def main():
    share, path = sys.argv[1:]
    totals, bare, reasons = {}, [], read_reasons()
    for name, entry in files_of(share, path):
        folder = next(f for f in FOLDERS if name.startswith(f + "/"))
        lines = (ROOT / "src" / name).read_text().split("\n")
        runs = runs_by_line(entry["segments"], len(lines))
        ways = {tuple(b[:4]): [0, 0] for b in entry["branches"]}
        for branch in entry["branches"]:
            ways[tuple(branch[:4])][0] += branch[4]
            ways[tuple(branch[:4])][1] += branch[5]
        row = totals.setdefault(folder, [0, 0, 0, 0])
        row[0] += sum(r is not None for r in runs)
        row[1] += sum(bool(r) for r in runs)
        row[2] += 2 * len(ways)
        row[3] += sum((a > 0) + (b > 0) for a, b in ways.values())
        for first, last in blocks(runs):
            text = lines[first - 1].strip()
            why = reasons.get((name, text))
            bare += [] if why else [name]
            print(f"{name}:{first}-{last}: {text}  [{why or 'without a reason'}]")
    print(f"\n{'folder':14} {'lines':>6} {'run':>6} {'':8} {'branches':>9} {'taken':>6}")
    totals["all"] = [sum(row[i] for row in totals.values()) for i in range(4)]
    for folder in (f for f in FOLDERS + ("all",) if f in totals):
        a, b, c, d = totals[folder]
        print(f"{folder:14} {a:6} {b:6} {100 * b / max(1, a):6.2f} % {c:9} {d:6} {100 * d / max(1, c):6.2f} %")
    is_unexplained = bare and share == "logic"
    return 1 if is_unexplained or 100 * totals["all"][1] / totals["all"][0] < TARGETS[share] else 0


if __name__ == "__main__":
    sys.exit(main())
