#!/usr/bin/env python3
"""Each value of a module, written as `inline` in a header, has its row in the register of the tests,
so that each test begins with a new process. A few need none."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
REGISTER = ROOT / "tests/register/all_values.cpp"
# Vectors that are empty between runs, and what the kernels ask of the processor.
WITHOUT_ROW = {"MazePage", "UserPage", "MazeStack", "FractalValues", "FractalBytes", "usedVectors"}
VALUE = re.compile(r"^inline (?!constexpr )[\w:<>, ]+? (\w+)(?: = [^;]*)?;", re.MULTILINE)
ROW = re.compile(r'Row\("(\w+)"|ValueRow colorRangeRow\(\) \{.*?return \{"(\w+)"', re.DOTALL)


def main():
    values = set()
    for header in (ROOT / "src").rglob("*.h"):
        values.update(VALUE.findall(header.read_text()))
    rows = {first or second for first, second in ROW.findall(REGISTER.read_text())}
    problems = [f"{name} has no row in the register" for name in sorted(values - rows - WITHOUT_ROW)]
    problems += [f"{name} has a row in the register, but no header has it" for name in sorted(rows - values)]
    problems += [f"{name} is no value of any header" for name in sorted(WITHOUT_ROW - values)]
    print("\n".join(problems) or f"{len(rows)} values have rows")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
