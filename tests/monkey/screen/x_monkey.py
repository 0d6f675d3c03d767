#!/usr/bin/env python3
"""A user by chance on the real program: real events of the X server, from a seed.

    x_monkey.py EDITOR SECONDS [SEED]

Every few seconds all is let go, dialogs are left, and the desk must come in order; then the screen
may change its size. A program that ends as it was asked to is started anew, with settings that may
be spoilt, in a folder of hostile files. Fails at a crash, at a program that does not answer, at a
desk that stays out of order and at settings that could not be read and were replaced."""
import collections
import ctypes
import os
import pathlib
import queue
import random
import subprocess
import sys
import tempfile
import threading
import time

import hard_life

PATIENCE = 60  # seconds for an answer, on a busy machine
PAUSE = 0.004  # seconds between two events, about
EVENTS_OF_ROUND = 1500
NEW_START = 0.1  # chance after a round
NEW_SCREEN = 0.3
ROUNDS_WITHOUT_EDITOR = 3
LEAST_SHOWN = 60  # pixels of a window that can be hit
KEYS = ["Return", "Escape", "Tab", "space", "Left", "Right", "Up", "Down", "Home", "End", "Prior",
        "Next", "a", "b", "m", "s", "1", "7", "period", "BackSpace", "F10"]


class Wrong(Exception):
    pass


class Gone(Exception):
    """The program has ended as it was asked to."""


class Screen:
    """The X server's mouse and keyboard."""

    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.test = ctypes.CDLL("libXtst.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XStringToKeysym.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        if not self.display.value:
            raise Wrong("there is no screen")
        self.width = self.x.XDisplayWidth(self.display, 0)
        self.height = self.x.XDisplayHeight(self.display, 0)
        self.held = set()
        self.events = 0

    def shows(self, window):
        x, y, width, height = window
        return (min(x + width, self.width) - max(x, 0) > LEAST_SHOWN
                and min(y + height, self.height) - max(y, 0) > LEAST_SHOWN)

    def flush(self):
        self.events += 1
        self.x.XFlush(self.display)

    def move(self, x, y):
        self.test.XTestFakeMotionEvent(self.display, 0, int(x), int(y), ctypes.c_ulong(0))
        self.flush()

    def button(self, number, is_down):
        (self.held.add if is_down else self.held.discard)(number)
        self.test.XTestFakeButtonEvent(self.display, number, is_down, ctypes.c_ulong(0))
        self.flush()

    def key(self, name, *holding):
        codes = [self.x.XKeysymToKeycode(self.display, ctypes.c_ulong(
            self.x.XStringToKeysym(k.encode()))) for k in (*holding, name)]
        for code, is_down in [(c, 1) for c in codes] + [(c, 0) for c in reversed(codes)]:
            self.test.XTestFakeKeyEvent(self.display, code, is_down, ctypes.c_ulong(0))
        self.flush()

    def active_window(self):
        done = subprocess.run(["xprop", "-root", "_NET_ACTIVE_WINDOW"], capture_output=True, text=True)
        return done.stdout.strip() or done.stderr.strip()

    def let_go(self):
        for number in list(self.held):
            self.button(number, 0)


class Look:
    def __init__(self, line):
        self.told = line.strip().replace("\t", "|")
        busy, loaded, minimized, self.problems, self.dialog, *windows = line.rstrip("\n").split("\t")
        self.is_busy, self.is_loaded, self.is_minimized = busy == "1", loaded == "1", minimized == "1"
        self.windows = [[int(n) for n in w.split()[:4]] for w in windows]
        self.modal = next(([int(n) for n in w.split()[:4]] for w in windows if "modal" in w), None)


class Editor:
    def __init__(self, path, folder):
        self.folder = pathlib.Path(folder)
        environment = dict(os.environ, HOME=folder, XDG_CONFIG_HOME=f"{folder}/conf")
        tools = self.folder / "bin"
        tools.mkdir(exist_ok=True)
        (tools / "xdg-open").write_text("#!/bin/sh\n")  # no browser of this machine
        (tools / "xdg-open").chmod(0o755)
        environment["PATH"] = f"{tools}:{environment['PATH']}"
        self.process = subprocess.Popen([path], cwd=hard_life.make_folder(folder), env=environment,
                                        text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.answers = queue.Queue()
        threading.Thread(target=self.read, daemon=True).start()

    def read(self):
        for line in self.process.stdout:
            self.answers.put(line)
        self.answers.put(None)

    def look(self, asked="look"):
        try:
            self.process.stdin.write(asked + "\n")
            self.process.stdin.flush()
            line = self.answers.get(timeout=PATIENCE)
        except BrokenPipeError:
            line = None
        except queue.Empty:
            raise Wrong(f"no answer in {PATIENCE} s")
        if line is not None and "\t" in line:  # an empty one comes from a program that is ending
            return Look(line)
        status = self.process.wait(PATIENCE)
        if status != 0:
            raise Wrong(f"the program ended with {status}")
        raise Gone()

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()


class User:
    def __init__(self, screen, seed):
        self.screen, self.chance = screen, random.Random(seed)
        self.place = (0, 0)
        self.seen = collections.Counter()
        self.doors = {}  # where a click brought up a dialog, by its title

    def any_place(self, look):
        windows = [look.modal] if look.modal and self.chance.random() < 0.9 else look.windows
        if windows and self.chance.random() < 0.97:
            x, y, width, height = self.chance.choice(windows)
            return x + self.chance.randrange(max(1, width)), y + self.chance.randrange(max(1, height))
        return self.chance.randrange(self.screen.width), self.chance.randrange(self.screen.height)

    def move(self, look):
        if self.chance.random() < 0.5:
            self.place = self.any_place(look)
        else:
            self.place = tuple(p + self.chance.randint(-25, 25) for p in self.place)
        self.screen.move(*self.place)

    def click(self, look):
        self.click_at(self.any_place(look))

    def go_through_door(self, look):
        if self.doors and not look.dialog:
            self.click_at(self.doors[self.chance.choice(sorted(self.doors))])

    def click_at(self, place):
        self.place = place
        self.screen.move(*self.place)
        button = self.chance.choice([1, 1, 1, 1, 1, 1, 2, 3])
        for _ in range(self.chance.choice([1, 1, 1, 2])):
            self.screen.button(button, 1)
            self.screen.button(button, 0)

    def drag(self, look):
        self.place = self.any_place(look)
        self.screen.move(*self.place)
        button = self.chance.choice([1, 1, 1, 1, 3])
        self.screen.button(button, 1)
        for _ in range(self.chance.randrange(30)):
            self.move(look)
            time.sleep(PAUSE)
        self.screen.button(button, 0)

    def press_key(self, look):
        self.screen.key(self.chance.choice(KEYS))

    def leave_dialog(self, look):
        self.screen.key("Escape")

    def answer_dialog(self, look):
        """A short name for what asks for one, and Yes."""
        for _ in range(self.chance.randrange(4)):
            self.screen.key(self.chance.choice("abms17"))
        self.screen.key("Return")

    def close_window(self, look):
        if self.chance.random() < 0.05:
            self.screen.key("F4", "Alt_L")

    def act(self, look):
        self.seen[look.dialog.strip() or ("the editor" if look.is_loaded else "the start")] += 1
        if look.dialog:
            self.doors.setdefault(look.dialog, self.place)
            if self.chance.random() < 0.05:
                self.answer_dialog(look)
                return
        deeds = [(40, self.click), (25, self.move), (20, self.drag), (10, self.press_key),
                 (3, self.go_through_door), (4, self.leave_dialog), (1, self.close_window)]
        self.chance.choices([d for _, d in deeds], [w for w, _ in deeds])[0](look)
        time.sleep(PAUSE)


def come_in_order(editor, screen):
    """All is let go and every dialog left; then the desk is in order before long. As a user does who
    finds that the keyboard is nowhere, the dialog is taken to hand first."""
    screen.let_go()
    end = time.monotonic() + PATIENCE
    look = editor.look()
    while time.monotonic() < end:
        if not look.dialog and not look.is_busy and not look.problems:
            return look
        if look.dialog:
            screen.key("Escape")
        time.sleep(0.25)
        look = editor.look("restore")
    raise Wrong(f"the desk stays out of order: {look.problems or look.dialog or 'busy'}; "
                f"{look.told}; the keyboard is at {screen.active_window()}")


def play(path, folder, screen, screens, user, until):
    """One life of the program. It ends too when its windows were closed or moved off the screen,
    by the window manager's keys, so that a user by chance does not find them again."""
    editor = Editor(path, folder)
    rounds = missing = 0
    try:
        look = editor.look()
        while time.monotonic() < until:
            for n in range(EVENTS_OF_ROUND // 10):
                if n % 8 == 0:
                    restores = look.is_minimized and user.chance.random() < 0.3
                    look = editor.look("restore" if restores else "look")
                if time.monotonic() > until:
                    break
                user.act(look)
            look = come_in_order(editor, screen)
            rounds += 1
            if user.chance.random() < NEW_SCREEN:
                screen.width, screen.height = screens.change()
                user.seen["a change of the screen"] += 1
            missing = 0 if look.is_loaded else missing + 1
            if missing == ROUNDS_WITHOUT_EDITOR or user.chance.random() < NEW_START:
                break
            if not look.is_minimized and not any(screen.shows(w) for w in look.windows):
                break
    except Gone:
        screen.let_go()
    finally:
        editor.end()
    return rounds


def main():
    path, seconds = os.path.abspath(sys.argv[1]), float(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    screen = Screen()
    user = User(screen, seed)
    screens = hard_life.Screens(screen.width, screen.height, user.chance)
    began = time.monotonic()
    starts = rounds = 0
    with tempfile.TemporaryDirectory() as folder:
        settings = hard_life.Settings(f"{folder}/conf", user.chance)
        spoilt = collections.Counter()
        try:
            while time.monotonic() < began + seconds:
                what = settings.spoil()
                spoilt[what] += 1
                rounds += play(path, folder, screen, screens, user, began + seconds)
                starts += 1
                wrong = settings.check(what)
                if wrong:
                    raise Wrong(wrong)
        except Wrong as wrong:
            print(f"seed {seed}, after {screen.events} events: {wrong}")
            return 1
    changes = user.seen.pop("a change of the screen", 0)
    print(f"{screen.events} events in {time.monotonic() - began:.0f} s, {starts} starts, "
          f"{rounds} times in order, {changes} changes of the screen")
    print("settings " + ", ".join(f"{what} {count}" for what, count in spoilt.most_common()))
    total = sum(user.seen.values())
    print("in " + ", ".join(f"{title} {100 * n / total:.0f} %" for title, n in
                            user.seen.most_common()))
    return 0


if __name__ == "__main__":
    sys.exit(main())
