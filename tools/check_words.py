#!/usr/bin/env python3
"""The platform is the only source of chance, time and files: words that ask the world for them do
not stand outside it. Sources stay short."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FORBIDDEN = ("rand", "srand", "random_device", "mt19937", "chrono", "fstream", "ifstream", "ofstream",
             "fopen", "getenv", "QString", "QWidget", "QImage", "QObject", "std::cout", "printf")
LONGEST = 450


def main():
    problems = []
    words = re.compile(r"(?<![\w])(" + "|".join(map(re.escape, FORBIDDEN)) + r")(?![\w])")
    for path in sorted(p for p in (ROOT / "src").rglob("*") if p.suffix in (".h", ".cpp")):
        name = path.relative_to(ROOT).as_posix()
        lines = path.read_text().splitlines()
        if len(lines) > LONGEST and "_table." not in name:
            problems.append(f"{name}: {len(lines)} lines, more than {LONGEST}")
        if name.startswith("src/platform/"):
            continue
        for number, line in enumerate(lines, 1):
            code = line.split("//")[0]
            found = words.search(code)
            if found:
                problems.append(f"{name}:{number}: '{found.group(1)}' outside the platform")
    print("\n".join(problems) if problems else "no forbidden word outside the platform")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
