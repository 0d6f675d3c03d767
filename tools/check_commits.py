#!/usr/bin/env python3
"""Holds the habits of commits, from the commit on that brought this check: a subject of at most 72
columns that reads "area: What it does", and at most 400 changed lines; moves, tables, goldens, pictures
and documents are not counted."""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ITSELF = "tools/check_commits.py"
MOST_COLUMNS, MOST_LINES = 72, 400
SUBJECT = re.compile(r"\w+: [A-Z]")
UNCOUNTED = re.compile(r"_table\.(h|cpp)$|\.(golden|svg|png|tsv|md|txt)$|^assets/")


def git(*words):
    return subprocess.run(["git", "-C", ROOT, *words], check=True, capture_output=True, text=True).stdout


def changed_lines(commit):
    lines = 0
    for row in git("show", "--numstat", "-M", "--format=", commit).splitlines():
        added, removed, path = row.split("\t")
        if added != "-" and not UNCOUNTED.search(path):
            lines += max(int(added), int(removed))
    return lines


def main():
    born = git("log", "--diff-filter=A", "--format=%H", "--", ITSELF).split()
    commits = git("log", "--no-merges", "--format=%H %s", f"{born[-1]}..HEAD").splitlines() if born else []
    problems = []
    for line in commits:
        commit, subject = line.split(" ", 1)
        if len(subject) > MOST_COLUMNS or not SUBJECT.match(subject):
            problems.append(f"{commit[:7]}: subject \"{subject}\"")
        if (lines := changed_lines(commit)) > MOST_LINES:
            problems.append(f"{commit[:7]}: {lines} changed lines ({subject})")
    print("\n".join(problems) or f"{len(commits)} commits are small and say what they do")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
