#!/usr/bin/env python3
"""How long after a press of a button its click is heard: tools/with_screen.sh tools/measure_sound.py EDITOR
Plays into a sound server of its own that has no ears but a monitor, and listens there. Prints one line
a press, in milliseconds; the first one is the first sound of the program. Needs the packages
pulseaudio, pulseaudio-utils and xdotool."""

import array
import ctypes
import os
import subprocess
import sys
import tempfile
import threading
import time

RATE = 48000
LOUD = 200  # of 32767
PRESSES = 12
SPLASH, SIZE_WINDOW, EDITOR = 460, 340, 771  # widths in units
SMALL = (235, 82)  # places in units
OPTIONS = (590, 60)


class Ear(threading.Thread):
    """Remembers when the first loud sample after a moment came."""

    def __init__(self):
        super().__init__(daemon=True)
        self.heard = []
        self.stream = subprocess.Popen(
            ["parec", "-d", "ear.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1",
             "--latency-msec=1", "--raw"], stdout=subprocess.PIPE)
        self.start()

    def run(self):
        was_quiet = True
        quiet_since = 0
        while True:
            data = os.read(self.stream.stdout.fileno(), 4096)
            now = time.monotonic()
            if not data:
                return
            samples = array.array("h", data[:len(data) // 2 * 2])
            loud = next((i for i, value in enumerate(samples) if abs(value) > LOUD), None)
            if loud is None:
                quiet_since += len(samples)
                was_quiet = was_quiet or quiet_since > RATE // 10
                continue
            quiet_since = 0
            if was_quiet:
                self.heard.append(now - (len(samples) - loud) / RATE)
                was_quiet = False

    def first_after(self, moment, seconds=2):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            for heard in self.heard:
                if heard > moment:
                    return heard
            time.sleep(0.005)
        return None


class Mouse:
    def __init__(self):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.test = ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))

    def move(self, x, y):
        self.test.XTestFakeMotionEvent(self.display, -1, int(x), int(y), 0)
        self.x11.XSync(self.display, 0)

    def button(self, is_down):
        """The moment just before the server was told."""
        moment = time.monotonic()
        self.test.XTestFakeButtonEvent(self.display, 1, int(is_down), 0)
        self.x11.XFlush(self.display)
        return moment

    def click(self, x, y):
        self.move(x, y)
        time.sleep(0.3)
        self.button(True)
        time.sleep(0.1)
        self.button(False)


def find_window(width):
    """Left, top, scale of the visible window that is so many units wide."""
    for _ in range(200):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Ombrelia"],
                               capture_output=True, text=True, check=False).stdout.split()
        for window in found:
            rows = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window],
                                  capture_output=True, text=True, check=False).stdout
            place = dict(row.split("=") for row in rows.split())
            for scale in (1, 1.25, 1.5, 1.75, 2, 2.5, 3, 4):
                if int(place.get("WIDTH", 0)) == -int(-width * scale // 1):
                    time.sleep(0.5)
                    return int(place["X"]), int(place["Y"]), scale
        time.sleep(0.1)
    sys.exit(f"no window of {width} units came up")


def measure(mouse, ear):
    left, top, scale = find_window(SPLASH)
    mouse.click(left + 60 * scale, top + 60 * scale)
    left, top, scale = find_window(SIZE_WINDOW)
    mouse.click(left + SMALL[0] * scale, top + SMALL[1] * scale)
    left, top, scale = find_window(EDITOR)
    mouse.move(left + OPTIONS[0] * scale, top + OPTIONS[1] * scale)
    time.sleep(0.5)
    for _ in range(PRESSES):
        pressed = mouse.button(True)
        heard = ear.first_after(pressed)
        print("silence" if heard is None else f"{1000 * (heard - pressed):.1f} ms", flush=True)
        time.sleep(0.4)
        mouse.button(False)
        time.sleep(0.6)


def main():
    with tempfile.TemporaryDirectory() as folder:
        os.environ["PULSE_SERVER"] = f"unix:{folder}/sound"
        server = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--disallow-exit",
             "-L", f"module-null-sink sink_name=ear rate={RATE}",
             "-L", f"module-native-protocol-unix socket={folder}/sound auth-anonymous=1"],
            stderr=subprocess.DEVNULL)
        time.sleep(1.5)
        ear = Ear()
        time.sleep(0.5)
        editor = subprocess.Popen([sys.argv[1]])
        try:
            measure(Mouse(), ear)
        finally:
            for process in (editor, ear.stream, server):
                process.kill()
                process.wait()


main()
