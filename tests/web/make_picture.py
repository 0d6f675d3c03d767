#!/usr/bin/python3
"""Makes the picture of the editor in a browser for the documents, from the running page:

    tools/with_screen.sh 1280x720 tests/web/make_picture.py FILE.png"""
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import browser  # noqa: E402
from desk import Desk  # noqa: E402

MOUNTAINS = ((70, 60, 200, 3), (190, 90, 150, 2), (130, 190, 110, 1), (40, 150, 90, 1), (215, 210, 180, 2))
RIVER = ((120, 5), (140, 60), (110, 110), (125, 150), (90, 200), (100, 255))


def main():
    with browser.start("chromium") as page:
        desk = Desk(page)
        desk.open_editor("Large")
        desk.choose("Fractal Terrain tool")
        for name, value in (("Smoothness", 20), ("Height", 35), ("Detail", 3)):
            desk.set_slider(name, value)
        desk.choose("Generate")
        desk.choose("Mountain tool")
        for x, y, height, top in MOUNTAINS:
            desk.set_slider("Height", height)
            desk.set_slider("Top Size", top)
            desk.stroke((x, y))
        desk.choose("Canyon tool")
        desk.stroke(*RIVER)
        desk.choose("3D Mode")
        desk.choose("Draw 3D")
        seen = page.picture()
        desk.leave()
    subprocess.run(["convert", "-size", f"{seen.width}x{seen.height}", "-depth", "8", "rgb:-", "-strip",
                    f"png:{sys.argv[1]}"], input=seen.data, check=True)


if __name__ == "__main__":
    main()
