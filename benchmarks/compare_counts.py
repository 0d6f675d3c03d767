#!/usr/bin/env python3
"""Instructions of ten dear operations next to those that are on record: a slow-down shows in them
on a machine of any mood.

  compare_counts.py PROGRAM FILE             fails where a count is more than 3 % off
  compare_counts.py PROGRAM FILE --record    writes the counts of today into FILE
"""
import pathlib
import re
import subprocess
import sys

TOLERANCE = 0.03
NOT_COMPARABLE = 77  # the test runner says "skipped"
HEAD = """\
# Instructions of each operation, counted by callgrind in the release preset with g++ 12 of Debian 12
# on a processor with AVX2. Written by: benchmarks/compare_counts.py PROGRAM FILE --record
"""


def count_one(program, name):
    command = ["valgrind", "--tool=callgrind", "--instr-atstart=no",
               "--callgrind-out-file=/dev/null", program, name]
    done = subprocess.run(command, capture_output=True, text=True)
    collected = re.search(r"Collected : (\d+)", done.stderr)
    if done.returncode != 0 or not collected:
        sys.exit(f"{name}: {done.stderr}")
    return int(collected.group(1))


def count(program):
    names = subprocess.run([program], capture_output=True, text=True, check=True).stdout.split()
    return {name: count_one(program, name) for name in names}


def recorded(path):
    lines = [line.split() for line in path.read_text().splitlines() if not line.startswith("#")]
    return {name: int(number) for name, number in lines}


def compare(counts, before):
    problems = []
    for name in sorted(set(counts) | set(before)):
        if name not in counts or name not in before:
            problems.append(f"{name}: {'not counted' if name in before else 'not on record'}")
            continue
        change = counts[name] / before[name] - 1
        print(f"{name:10} {counts[name]:12,}  {change:+7.2%}")
        if abs(change) > TOLERANCE:
            problems.append(f"{name}: {change:+.1%} of {before[name]:,} instructions; if that is "
                            "meant, put the new count on record")
    return problems


def main():
    program, path = sys.argv[1], pathlib.Path(sys.argv[2])
    if " avx2 " not in pathlib.Path("/proc/cpuinfo").read_text():
        print("left out: the counts of instructions; those on record are of a processor with AVX2")
        return NOT_COMPARABLE
    counts = count(program)
    if "--record" in sys.argv:
        path.write_text(HEAD + "".join(f"{name} {number}\n" for name, number in counts.items()))
        return 0
    problems = compare(counts, recorded(path))
    print("\n".join(problems) or "every count is the one on record")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
