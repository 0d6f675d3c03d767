#!/usr/bin/env python3
"""Holds the one palette: the pictures of the skin have no colours but those of
assets/skin/palette.txt, and the sources that draw the windows name them and write none themselves.
With a folder as argument, looks there instead of here."""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else __file__).resolve()
ROOT = ROOT if ROOT.is_dir() else ROOT.parent.parent
SKIN = ROOT / "assets/skin"
DRAWING = ("src/platform/qt", "src/core/windows", "src/panels")
MOST_ROLES = 24

ROLE = re.compile(r"([a-z_]+) (#[0-9a-f]{6}) \S.*")
REFERENCE = re.compile(r'url\(#[^)]*\)|href="#[^"]*"')
PAINT = re.compile(r'(?:\b(?:fill|stroke|color|stop-color|flood-color|lighting-color)'
                   r'\s*(?:=\s*["\']|:)\s*)([^"\';]*)')
HEX = re.compile(r"#[0-9a-fA-F]{3,8}\b")
WRITTEN = re.compile(r"#[0-9a-fA-F]{3,8}\b|\bq?rgba?\(\s*\d[^)]*\)|\bqRgba?\(\s*\d[^)]*\)"
                     r'|\bQColor\s*(?:\w+\s*)?[({]\s*["\d][^)}]*[)}]'
                     r"|\bQt::(?:white|black|gray|red|green|blue|cyan|magenta|yellow"
                     r"|(?:dark|light)[A-Z][a-z]+)\b|\bQColorConstants\b", re.M)


def read_roles(problems):
    roles = {}
    for number, line in enumerate((SKIN / "palette.txt").read_text().splitlines(), 1):
        found = ROLE.fullmatch(line)
        if not found:
            problems.append(f"palette.txt:{number}: not \"name #rrggbb what it is for\"")
        elif found[1] in roles or found[2] in roles.values():
            problems.append(f"palette.txt:{number}: {found[1]} {found[2]} is there already")
        else:
            roles[found[1]] = found[2]
    if len(roles) > MOST_ROLES:
        problems.append(f"palette.txt: {len(roles)} roles, which is more than {MOST_ROLES}")
    return roles


def colors_of_picture(text):
    text = REFERENCE.sub("none", text)
    return {value.strip() for value in PAINT.findall(text)} - {"none", ""} | set(HEX.findall(text))


def line_of(text, place):
    return text.count("\n", 0, place) + 1


def main():
    problems, used = [], set()
    roles = read_roles(problems)
    pictures = sorted(SKIN.glob("*.svg"))
    for path in pictures:
        colors = colors_of_picture(path.read_text())
        used |= colors
        problems += [f"{path.relative_to(ROOT)}: {color} is not of the palette"
                     for color in sorted(colors - set(roles.values()))]
    sources = sorted(p for folder in DRAWING for p in (ROOT / folder).rglob("*")
                     if p.suffix in (".h", ".cpp"))
    for path in sources:
        text = path.read_text()
        problems += [f"{path.relative_to(ROOT)}:{line_of(text, found.start())}: {found[0].strip()} "
                     "is written out, not named" for found in WRITTEN.finditer(text)]
        used |= {roles[name] for name in re.findall(r"@([a-z_]+)", text) if name in roles}
        used |= {roles[name] for name in roles
                 if "palette::k" + name.title().replace("_", "") in text}
    problems += [f"palette.txt: nothing has the colour {name}" for name in roles
                 if roles[name] not in used]
    print("\n".join(problems) if problems else
          f"{len(pictures)} pictures and {len(sources)} sources keep the {len(roles)} colours")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
