#!/usr/bin/env python3
"""Reads what the benchmarks wrote and prints the table of speed.

  speed_table.py FOLDER          the table of the results in FOLDER (*.json)
  speed_table.py FOLDER FILE     the same, and puts it into FILE between its two marks
"""
import json
import math
import pathlib
import platform
import subprocess
import sys

from speed_rows import COMPARISONS, NOT_OF_ONE_FRAME, OPERATIONS, PROGRAM

MICROSECONDS = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}
FRAME = 16e3             # microseconds, where a textbook diamond-square takes TEXTBOOK
TEXTBOOK = 100.0
IDLE_ALLOWANCE = 0.05    # per cent of a core above the empty window
STEEPER = 0.1            # exponents are known no better than this
BEGIN, END = "<!-- measured: begin -->", "<!-- measured: end -->"


class Results:
    """The least time of each benchmark's repetitions, in microseconds, and its counters."""

    def __init__(self, folder):
        self.times, self.counters, self.median = {}, {}, {}
        for path in sorted(pathlib.Path(folder).glob("*.json")):
            for entry in json.loads(path.read_text())["benchmarks"]:
                self.take(entry)

    def take(self, entry):
        if entry.get("run_type") == "aggregate":
            return
        if entry.get("error_occurred"):
            sys.exit(f"{entry['name']}: {entry['error_message']}")
        name = entry["run_name"].split("/iterations:")[0].removesuffix("/manual_time")
        # Others share the machine: the processor's own time is what they disturb least.
        kind = "real_time" if entry.get("clock") == "wall" or "manual_time" in entry["run_name"] \
            else "cpu_time"
        time = entry[kind] * MICROSECONDS[entry["time_unit"]]
        self.times[name] = min(time, self.times.get(name, math.inf))
        for counter in ("work", "samples", "peak_MiB", "above_idle_MiB", "percent", "largest_ms"):
            if counter in entry:
                self.counters[name, counter] = entry[counter]

    def __getitem__(self, name):
        return self.times.get(name)

    def limit(self, row):
        if row.limit != "samples":
            return self[row.limit]
        return self.counters[row.ours, "samples"] / self.pace("visitSamples")

    def pace(self, name):
        """Samples a microsecond, which are millions a second."""
        return self.counters[name, "samples"] / self[name]


def short(value):
    """Three digits that count."""
    if value >= 100:
        return f"{value:.0f}"
    return f"{value:.1f}" if value >= 10 else f"{value:.2f}"


def spell(microseconds):
    if microseconds is None:
        return ""
    return f"{short(microseconds / 1e3)} ms" if microseconds >= 1e3 else f"{short(microseconds)} us"


def frame_of(results):
    return FRAME * results["textbookDiamondSquare"] / TEXTBOOK


def verdict(row, ours, results, frame):
    kind, times, other = row.target or ("", 0, "")
    parts = []
    if kind in ("most", "least"):
        ratio = ours / results[other] if kind == "most" else results[other] / ours
        is_met = ratio <= times if kind == "most" else ratio >= times
        faster = "" if kind == "most" else "as fast as "
        parts.append(("" if is_met else "MISSED: ") +
                     f"{short(ratio)} times {faster}{other}, at {kind} {times}")
    if row.what in COMPARISONS:
        return ""
    if row.what in NOT_OF_ONE_FRAME or ours <= frame:
        return "; ".join(parts) or "met"
    is_bound = kind == "bound" and ours <= times * results[other]
    parts.append(f"{short(ours / frame)} frames, the limit's" if is_bound else
                 f"MISSED: {short(ours / frame)} frames")
    return "; ".join(parts)


def beside(time, ours):
    """Another figure for the same work, and how many times ours it is."""
    return (spell(time), short(time / ours)) if time else ("", "")


def operations(results):
    frame = frame_of(results)
    rows = [("What", "ours", "plain", "times ours", "public", "times ours", "by", "limit",
             "times ours", "target")]
    for row in OPERATIONS:
        ours = results[row.ours]
        if ours is None:
            sys.exit(f"{row.ours} was not measured")
        rows.append((row.what, spell(ours), *beside(results[row.plain], ours),
                     *beside(results[row.public], ours), row.label,
                     *beside(results.limit(row) if row.limit else None, ours),
                     verdict(row, ours, results, frame)))
    return rows


def samples(results):
    rows = [("What", "samples", "reached, samples a second", "limit of one core")]
    limit = results.pace("visitSamples")
    for row in OPERATIONS:
        if row.limit == "samples":
            rows.append((row.what, short(results.counters[row.ours, "samples"] / 1e6) + " million",
                         f"{results.pace(row.ours):.3g} million", f"{limit:.3g} million"))
    return rows


def program_figure(results, name, unit):
    if ":" in name:
        return results.counters.get(tuple(name.split(":")))
    if unit == "%":
        return results.counters.get((name, "percent"))
    time = results[name]
    return time / 1e3 if time is not None else None


def program(results):
    rows = [("What", "editor", "empty Qt window", "ratio", "target")]
    for row in PROGRAM:
        ours, empty = (program_figure(results, name, row.unit) for name in (row.ours, row.empty))
        if ours is None or empty is None:
            sys.exit(f"{row.ours} or {row.empty} was not measured")
        is_met, target = ours <= row.factor * empty, f"at most {row.factor} times"
        if row.unit == "%":
            is_met, target = ours - empty <= IDLE_ALLOWANCE, f"at most {IDLE_ALLOWANCE} % above"
        elif row.frame:
            is_met, target = ours <= FRAME / 1e3, "at most one frame, 16 ms"
        digits = f"{ours:.4f}", f"{empty:.4f}"
        if row.unit != "%":
            digits = short(ours), short(empty)
        rows.append((row.what, f"{digits[0]} {row.unit}", f"{digits[1]} {row.unit}",
                     short(ours / empty) if empty else "", ("met: " if is_met else "MISSED: ") +
                     target))
    return rows


def exponent(points):
    """Slope of the straight line through the logarithms."""
    logs = [(math.log(x), math.log(y)) for x, y in points]
    mean_x, mean_y = (sum(axis) / len(logs) for axis in zip(*logs))
    over = sum((x - mean_x) * (y - mean_y) for x, y in logs)
    return over / sum((x - mean_x) ** 2 for x, _ in logs)


def growth(results):
    grown = {}
    for name, time in results.times.items():
        if name.startswith("growth/"):
            _, operation, parameter, value = name.split("/")
            work = results.counters[name, "work"]
            grown.setdefault((operation, parameter), []).append((int(value), time, work))
    rows = [("Operation", "over", "from .. to", "time from .. to", "exponent",
             "of what is visited", "verdict")]
    for (operation, parameter), points in grown.items():
        points.sort()
        slope = exponent([(value, time) for value, time, _ in points])
        allowed = exponent([(value, work) for value, _, work in points])
        rows.append((operation, parameter, f"{points[0][0]} .. {points[-1][0]}",
                     f"{spell(points[0][1])} .. {spell(points[-1][1])}", f"{slope:.2f}",
                     f"{allowed:.2f}", "met" if slope <= allowed + STEEPER else "MISSED"))
    return rows


def lay_out(rows):
    """A Markdown table whose columns stand under each other."""
    widths = [max(len(row[n]) for row in rows) for n in range(len(rows[0]))]
    lines = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |"
             for row in rows]
    lines.insert(1, "|" + "|".join("-" * (width + 2) for width in widths) + "|")
    return "\n".join(lines)


def machine():
    model = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo")
                  if line.startswith("model name")), platform.processor())
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True,
                              check=True).stdout.splitlines()[0]
    cores = len([line for line in open("/proc/cpuinfo") if line.startswith("processor")])
    return f"{model}, {cores} cores; {compiler}; Linux {platform.release().split('-')[0]}."


def sections(results):
    return "\n\n".join((
        f"Machine: {machine()}\nOne display frame on it, by its textbook diamond-square: "
        f"{spell(frame_of(results))}.",
        "### Operations on the largest map\n\n" + lay_out(operations(results)),
        "### Samples that the tools visit\n\n" + lay_out(samples(results)),
        "### The program as a whole\n\n" + lay_out(program(results)),
        "### How cost grows\n\n" + lay_out(growth(results))))


def record(text, path, marks=(BEGIN, END)):
    page = pathlib.Path(path).read_text()
    begin, end = page.index(marks[0]) + len(marks[0]), page.index(marks[1])
    pathlib.Path(path).write_text(f"{page[:begin]}\n{text}\n{page[end:]}")


def main():
    text = sections(Results(sys.argv[1]))
    print(text)
    if len(sys.argv) > 2:
        record(text, sys.argv[2])
    print("\n{} figures miss their target.".format(text.count("MISSED")))


if __name__ == "__main__":
    main()
