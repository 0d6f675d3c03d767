#!/usr/bin/python3
"""Tests of the editor's page in one browser, which starts once for all of them:

    tools/with_screen.sh 1920x1080 tests/web/in_browser.py chromium|firefox [RATIO] [word of unittest ...]

RATIO: device pixels to one of the page's, 1 if left out. The tests are the files page_*.py beside this
one."""
import pathlib
import sys
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import browser  # noqa: E402
import page_case  # noqa: E402


def main():
    kind, words = sys.argv[1], sys.argv[2:]
    ratio = float(words.pop(0)) if words and words[0][0].isdigit() else 1
    names = [path.stem for path in sorted(HERE.glob("page_*.py")) if path.stem != "page_case"]
    with browser.start(kind, pixel_ratio=ratio) as page:
        page_case.PAGE, page_case.KIND = page, kind
        print(f"{kind}: of use after {page.start_seconds:.1f} s", file=sys.stderr)
        asked = [word for word in words if not word.startswith("-")]
        switches = [word for word in words if word.startswith("-")]
        program = unittest.main(module=None, exit=False, verbosity=2,
                                argv=[sys.argv[0], *switches, *(asked or names)])
    sys.exit(not program.result.wasSuccessful())


if __name__ == "__main__":
    main()
