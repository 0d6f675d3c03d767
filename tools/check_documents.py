#!/usr/bin/env python3
"""The documents stay true: every back-ticked path, every picture and every test that a `Required:`
comment names exists; the ladder in docs/architecture.md is the one that is checked; the kinds of
pictures in docs/guide.md are those that are read, and the desktop entry claims none; the splash shows
the version."""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def tracked():
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, check=True,
                            capture_output=True, text=True).stdout
    return listed.splitlines()


def check_paths(files, problems):
    folders = {str(p) for f in files for p in pathlib.PurePosixPath(f).parents}
    known = set(files) | folders
    made = ("build", "demo")  # folders that commands make
    for name in (f for f in files if f.endswith(".md")):
        text = (ROOT / name).read_text()
        for word in re.findall(r"`([^`\s]+)`", text):
            path = word.removeprefix("./").rstrip("/")
            if "/" not in word or "*" in word or path.split("/")[0].split("-")[0] in made:
                continue
            if path not in known and f"src/{path}" not in known:
                problems.append(f"{name}: `{word}` does not exist")
        for picture in re.findall(r"!\[[^\]]*\]\(([^)]+)\)", text):
            target = (pathlib.PurePosixPath(name).parent / picture).as_posix()
            if target not in known:
                problems.append(f"{name}: picture {picture} does not exist")


def check_required(files, problems):
    tests = "\n".join((ROOT / f).read_text() for f in files
                      if f.startswith("tests/") and f.endswith(".cpp"))
    scenarios = {pathlib.PurePosixPath(f).stem for f in files if f.startswith("tests/scenarios/")}
    for name in (f for f in files if f.startswith("src/") and f.endswith((".h", ".cpp"))):
        text = re.sub(r"\n\s*// ?", " ", (ROOT / name).read_text())
        for test in re.findall(r"Required:[^()]*\((\w+)\)", text):
            if not re.search(rf"\b{test}\b", tests) and test not in scenarios:
                problems.append(f"{name}: no test is called {test}")


def check_ladder(problems):
    page = (ROOT / "docs/architecture.md").read_text()
    for line in (ROOT / "tools/layers.txt").read_text().splitlines():
        if line and not line.startswith("#") and line not in page:
            problems.append(f"docs/architecture.md does not show: {line}")


def check_kinds(problems):
    table = (ROOT / "src/platform/picture_kinds_table.h").read_text()
    kinds = ", ".join(re.findall(r'\{"(\w+)", "[a-z ]+", "[a-z ]*"\}', table))
    if not kinds or f"\n{kinds}.\n" not in (ROOT / "docs/guide.md").read_text():
        problems.append(f"docs/guide.md does not list the pictures that are read: {kinds}.")
    if "MimeType" in (ROOT / "packaging/ombrelia-terrain-editor.desktop").read_text():
        problems.append("the desktop entry promises to open files, which the editor does not do")


def check_version(problems):
    version = re.search(r"^project\([^)]*\bVERSION\s+([\d.]+)", (ROOT / "CMakeLists.txt").read_text(), re.M)
    if f"<!-- Version {version[1]} -->" not in (ROOT / "assets/skin/splash.svg").read_text():
        problems.append(f"assets/skin/splash.svg does not show the version {version[1]}: "
                        "run tools/letter_splash.py")


def main():
    problems, files = [], tracked()
    check_paths(files, problems)
    check_required(files, problems)
    check_ladder(problems)
    check_kinds(problems)
    check_version(problems)
    print("\n".join(problems) if problems else "the documents are true")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
