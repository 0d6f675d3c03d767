#!/usr/bin/env python3
"""Works the editor with the mouse under a Wayland compositor that runs in a window of this X screen:
    work_windows.py PROGRAM native|xwayland [PICTURES]
Says what is wrong and ends with 1 if anything is, and with 77 if nothing can be said since the
compositor crashes. PICTURES is a folder to leave what was seen."""

import os
import re
import subprocess
import sys
import tempfile
import time

WIDTH, HEIGHT = 1400, 800
GROUND = (0, 64, 0)
SETTINGS = """[core]
idle-time=0
[shell]
background-color=0xff004000
panel-position=none
locking=false
animation=none
startup-animation=none
close-animation=none
"""
EDITOR = (771, 355)  # the windows' sizes in units
SIZE_WINDOW = 340
SMALL = (235, 82)  # places in units
FRACTAL = (430, 150)
GENERATE = (600, 186)
TITLE = (250, 10)
MAP = (8, 90, 257)  # left, top, side


class CompositorGone(Exception):
    """Its window is not there, or not any more."""


class Screen:
    """The compositor's window: pictures of it, and the mouse in it."""

    def __init__(self):
        self.left, self.top = 0, 0
        self.find()

    def find(self):
        """Where the compositor's window stands: a window manager may have moved it."""
        tree = subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True, text=True,
                              check=True).stdout
        line = next((row for row in tree.splitlines() if "Weston Compositor" in row), None)
        if line is None:
            raise CompositorGone
        self.left, self.top = map(int, re.findall(r"[+-]\d+", line)[-2:])

    def picture(self, name=None):
        """Rows of red-green-blue triples."""
        data = subprocess.run(["import", "-silent", "-window", "root", "-crop",
                               f"{WIDTH}x{HEIGHT}+{self.left}+{self.top}", "+repage", "-depth", "8",
                               "ppm:-"], capture_output=True, check=True).stdout
        if name and len(sys.argv) > 3:
            with open(f"{sys.argv[3]}/{name}.ppm", "wb") as file:
                file.write(data)
        pixels = data[-WIDTH * HEIGHT * 3:]
        return [pixels[y * WIDTH * 3:(y + 1) * WIDTH * 3] for y in range(HEIGHT)]

    def mouse(self, *words):
        subprocess.run(["xdotool", *map(str, words)], check=True)

    def move(self, x, y):
        """The compositor adds up the ways of the pointer: through the corners both agree again.
        XWayland speeds a long way up and presses where that ends; a short way sets it right."""
        self.find()
        place = (self.left + round(x), self.top + round(y))
        words = []
        for step in ((self.left + WIDTH - 1, self.top + HEIGHT - 1), (self.left, self.top), place,
                     (place[0] + 1, place[1] + 1), place):
            words += ["mousemove", *step, "sleep", 0.1]
        self.mouse(*words)

    def follow(self, x, y):
        self.mouse("mousemove", self.left + round(x), self.top + round(y), "sleep", 0.1)

    def click(self, x, y):
        self.move(x, y)
        self.mouse("mousedown", 1, "sleep", 0.1, "mouseup", 1)

    def drag(self, x, y, dx, dy):
        self.move(x, y)
        self.mouse("mousedown", 1, "sleep", 0.2)
        for step in range(1, 6):
            self.follow(x + dx * step / 5, y + dy * step / 5)
        self.mouse("sleep", 0.2, "mouseup", 1)


def is_ground(red, green, blue):
    """The compositor's ground, or its shadow of a window."""
    return red < 8 and blue < 8 and green <= GROUND[1] + 2


def box_of(picture):
    """Left, top, width, height of the windows; None if there are none."""
    margin = 2  # the compositor's window has an edge
    columns, rows = [], []
    for y in range(margin, HEIGHT - margin):
        row = picture[y]
        if row == bytes(GROUND) * WIDTH:
            continue
        here = [x for x in range(margin, WIDTH - margin) if not is_ground(*row[3 * x:3 * x + 3])]
        if len(here) > 20:  # more than a pointer
            rows.append(y)
            columns += [here[0], here[-1]]
    if not rows:
        return None
    return min(columns), rows[0], max(columns) - min(columns) + 1, rows[-1] - rows[0] + 1


def settled(screen, accept, seconds=60):
    """The box and the picture once the windows stand still and the box is accepted; else None."""
    end = time.monotonic() + seconds
    last = None
    while time.monotonic() < end:
        picture = screen.picture()
        box = box_of(picture)
        if box and box == last and accept(box):
            return box, picture
        last = box
        time.sleep(0.3)
    return None


def click_until(screen, place, accept):
    """Clicks a place until the windows are accepted; a compositor may miss a click on a fresh window."""
    for _ in range(3):
        screen.click(*place)
        found = settled(screen, accept, 15)
        if found is not None:
            return found
    return None


def colors_of_map(picture, left, top, scale):
    found = set()
    for v in range(10, MAP[2] - 10, 4):
        for u in range(150, MAP[2] - 10, 4):
            x, y = round(left + (MAP[0] + u) * scale), round(top + (MAP[1] + v) * scale)
            found.add(picture[y][3 * x:3 * x + 3])
    return len(found)


def tell_story(screen):
    first = settled(screen, lambda box: True)
    if first is None:
        return "the splash does not come up"
    splash = first[0]
    second = click_until(screen, (splash[0] + splash[2] / 2, splash[1] + splash[3] / 2),
                         lambda box: abs(box[2] / box[3] - SIZE_WINDOW / 262) < 0.02)
    if second is None:
        return "the choice of the size does not come up"
    box = second[0]
    scale = box[2] / SIZE_WINDOW
    third = click_until(screen, (box[0] + SMALL[0] * scale, box[1] + SMALL[1] * scale),
                        lambda box: box[2] >= EDITOR[0] * scale - 2)
    if third is None:
        return "the editor does not come up"
    box, picture = third
    screen.picture("editor")
    if sys.argv[2] == "native":
        if abs(box[3] - EDITOR[1] * scale) > 3:
            return f"the windows of the editor do not stand beside each other: {box}, scale {scale}"
        if box[2] < (EDITOR[0] + 40) * scale:
            return f"the hint frame is not seen beside the editor: {box}, scale {scale}"
    else:
        # This compositor forgets where an X client wants its second window, so the hint frame may
        # stand anywhere over the editor, whose bottom is the lowest thing to see.
        box = box[0], round(box[1] + box[3] - EDITOR[1] * scale), box[2], round(EDITOR[1] * scale)

    before = colors_of_map(picture, box[0], box[1], scale)
    screen.click(box[0] + FRACTAL[0] * scale, box[1] + FRACTAL[1] * scale)
    time.sleep(0.5)
    screen.click(box[0] + GENERATE[0] * scale, box[1] + GENERATE[1] * scale)
    end = time.monotonic() + 10
    after = before
    while after < before + 10 and time.monotonic() < end:
        time.sleep(0.5)
        after = colors_of_map(screen.picture("landscape"), box[0], box[1], scale)
    if after < before + 10:
        return f"no landscape appears: {before} colours on the map, then {after}"

    away = -min(60, box[0] - 4), min(50, HEIGHT - box[1] - box[3] - 4)
    screen.drag(box[0] + TITLE[0] * scale, box[1] + TITLE[1] * scale, *away)
    bottom = box[1] + box[3] + away[1]
    moved = settled(screen, lambda now: abs(now[0] - box[0] - away[0]) < 4 and
                    abs(now[1] + now[3] - bottom) < 4, 30)
    screen.picture("moved")
    if moved is None:
        return "the windows do not move together by the title"
    return None


def try_editor(program, mode):
    """Starts a compositor and the editor in it: what is wrong, or None. May raise CompositorGone."""
    with tempfile.TemporaryDirectory() as folder:
        with open(f"{folder}/weston.ini", "w", encoding="ascii") as file:
            file.write(SETTINGS)
        words = ["weston", "--backend=x11-backend.so", f"--width={WIDTH}", f"--height={HEIGHT}",
                 f"--config={folder}/weston.ini", "--socket=wayland-test", f"--log={folder}/log"]
        if mode == "xwayland":
            words.append("--xwayland")
        compositor = subprocess.Popen(words, stderr=subprocess.DEVNULL)
        environment = dict(os.environ, WAYLAND_DISPLAY="wayland-test")
        del environment["DISPLAY"]
        environment.pop("QT_QPA_PLATFORM", None)
        editor = None
        try:
            time.sleep(3)
            screen = Screen()
            if mode == "xwayland":
                with open(f"{folder}/log", encoding="utf-8") as file:
                    environment["DISPLAY"] = re.search(r"xserver listening on display (:\d+)",
                                                       file.read()).group(1)
            editor = subprocess.Popen([program], env=environment)
            fault = tell_story(screen)
            if fault is None and editor.poll() is not None:
                fault = "the editor has ended"
            if compositor.poll() is not None:
                raise CompositorGone
            if fault is not None:
                screen.picture("fault")
            return fault
        finally:
            for process in (editor, compositor):
                if process is not None:
                    process.terminate()
                    process.wait()


def main():
    program, mode = sys.argv[1], sys.argv[2]
    has_crashed = False
    # Where the compositor of XWayland puts the hint frame is left to chance: it may lie on the very
    # button that is needed.
    for _ in range(1 if mode == "native" else 4):
        try:
            fault = try_editor(program, mode)
        except CompositorGone:
            fault = "the compositor has crashed"
            has_crashed = True
        if fault is None:
            return 0
        print(fault, file=sys.stderr)
    return 77 if has_crashed else 1


if __name__ == "__main__":
    sys.exit(main())
