#!/usr/bin/env python3
"""Each source of the logic has its tests: tests/unit/FOLDER/test_NAME.cpp, or a row in
tests/unit/tested_elsewhere.tsv that says where they are."""
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ELSEWHERE = ROOT / "tests/unit/tested_elsewhere.tsv"
BACK_ENDS = ("platform/qt/", "platform/headless/", "platform/web/")  # what is tested is the program on them


def main():
    lines = ELSEWHERE.read_text().splitlines()
    elsewhere = dict(line.split("\t") for line in lines if not line.startswith("#"))
    problems = []
    count = 0
    for path in sorted((ROOT / "src").rglob("*.cpp")):
        source = path.relative_to(ROOT / "src")
        if source.as_posix().startswith(BACK_ENDS):
            continue
        count += 1
        has_own = (ROOT / "tests/unit" / source.parent / f"test_{source.name}").exists()
        place = elsewhere.pop(source.as_posix(), None)
        if has_own and place:
            problems.append(f"src/{source} has a test of its own and a row in {ELSEWHERE.name}")
        if not has_own and (place is None or not (ROOT / place).exists()):
            problems.append(f"src/{source} has no test, and no row in {ELSEWHERE.name} that tells where it is")
    problems += [f"src/{source} is gone; its row in {ELSEWHERE.name} is not" for source in elsewhere]
    print("\n".join(problems) or f"{count} sources have tests")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
