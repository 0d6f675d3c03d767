#!/usr/bin/env python3
"""Letters the version of CMakeLists.txt into assets/skin/splash.svg as outlines, for the splash has
no text that a font of the machine could change. Run it whenever the version changes. Needs the
packages python3-fonttools, fontconfig and fonts-dejavu-core.
With a folder as argument, letters the splash there instead of here."""
import pathlib
import re
import subprocess
import sys

try:
    from fontTools.pens.svgPathPen import SVGPathPen
    from fontTools.pens.transformPen import TransformPen
    from fontTools.ttLib import TTFont
except ImportError:
    sys.exit("letter_splash.py needs fontTools: install the package python3-fonttools.")

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else __file__).resolve()
ROOT = ROOT if ROOT.is_dir() else ROOT.parent.parent
SPLASH = ROOT / "assets/skin/splash.svg"
FAMILY = "DejaVu Sans"
SIZE, RIGHT, BASELINE = 10.5, 438, 239  # in units of the splash
COLOR = "#b3c2d6"

VERSION = re.compile(r"^project\([^)]*\bVERSION\s+(\d+(?:\.\d+)*)", re.M)
GROUP = re.compile(r' *<!-- Version [^\n]* -->\n *<g id="version".*?</g>\n', re.S)


def open_font():
    try:
        found = subprocess.run(["fc-match", "-f", "%{family}\n%{file}", f"{FAMILY}:style=Book"],
                               check=True, capture_output=True, text=True).stdout.split("\n")
    except (OSError, subprocess.CalledProcessError):
        sys.exit("letter_splash.py needs fc-match: install the package fontconfig.")
    if found[0] != FAMILY:
        sys.exit(f"letter_splash.py needs the font {FAMILY}: "
                 "install the package fonts-dejavu-core.")
    return TTFont(found[1])


def short(number):
    return f"{round(number * 20) / 20:g}"


# One path a word; the words end at RIGHT and stand on the baseline.
def outlines(font, text, baseline=BASELINE):
    names = [font.getBestCmap()[ord(letter)] for letter in text]
    kerning = font["kern"].kernTables[0].kernTable
    places, end = [], 0
    for name, before in zip(names, [None] + names):
        places.append(end + kerning.get((before, name), 0))
        end = places[-1] + font["hmtx"][name][0]
    scale = SIZE / font["head"].unitsPerEm
    glyphs, paths, pen = font.getGlyphSet(), [], None
    for letter, name, place in zip(text, names, places):
        if letter == " ":
            pen = None
            continue
        if pen is None:
            pen = SVGPathPen(glyphs, ntos=short)
            paths.append(pen)
        at = (scale, 0, 0, -scale, RIGHT - (end - place) * scale, baseline)
        glyphs[name].draw(TransformPen(pen, at))
    return [path.getCommands() for path in paths]


def main():
    version = VERSION.search((ROOT / "CMakeLists.txt").read_text())
    if not version:
        sys.exit("letter_splash.py: CMakeLists.txt names no version.")
    text = f"Version {version[1]}"
    group = "".join([f'  <!-- {text} -->\n  <g id="version" fill="{COLOR}">\n',
                     *(f'    <path d="{path}"/>\n' for path in outlines(open_font(), text)),
                     "  </g>\n"])
    splash, times = GROUP.subn(lambda _: group, SPLASH.read_text())
    if times != 1:
        sys.exit(f"letter_splash.py: splash.svg has {times} groups of a version, not one.")
    SPLASH.write_text(splash)
    print(f"splash.svg says {text}")


if __name__ == "__main__":
    main()
