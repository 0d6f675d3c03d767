"""The real program worked by mouse and keys of the X server, on a screen of 1000 x 560."""
import time

import x_monkey

# Places in the editor's window and in the one that asks for a size.
SMALL = (234, 80)
FRACTAL, MOUNTAIN, CANYON, PLAIN, PENCIL = (427, 163), (342, 219), (384, 219), (427, 219), (342, 119)
FROM_ABOVE, PERSPECTIVE, HELP, MENU = (160, 60), (203, 60), (739, 60), (454, 61)
GENERATE, DRAW_3D, ADD_COLOR, STRIP = (597, 186), (673, 182), (539, 316), (553, 198)
HELP_CLOSE = (551, 12)
NEW_MAP, IMPORT, SAVE = (539, 122), (674, 122), (539, 156)
MAP_CORNER, MAP_SIDE = (8, 88), 257
WHEEL_DOWN = 5


class Life:
    def __init__(self, path, folder, screen):
        self.screen = screen
        self.editor = x_monkey.Editor(path, folder)
        self.wait(lambda look: len(look.windows) == 1 and not look.is_loaded)
        self.click((450, 250), over=True)
        self.choose_size()

    def choose_size(self):
        # It is asked for in a smaller window than the splash.
        self.wait(lambda look: look.windows and self.largest(look)[2] < 400)
        self.click(SMALL)
        self.wait(lambda look: look.is_loaded and not look.is_busy and self.largest(look)[2] > 700)

    def largest(self, look):
        return max(look.windows, key=lambda window: window[2])

    def wait(self, holds):
        end = time.monotonic() + x_monkey.PATIENCE
        while time.monotonic() < end:
            look = self.editor.look()
            if holds(look):
                return
            time.sleep(0.02)
        raise x_monkey.Wrong(f"waited in vain; {look.told}")

    def click(self, place, over=False):
        corner = (0, 0) if over else self.largest(self.editor.look())[:2]
        self.screen.move(corner[0] + place[0], corner[1] + place[1])
        time.sleep(0.05)
        self.screen.button(1, 1)
        self.screen.button(1, 0)
        time.sleep(0.1)

    def drag_on_map(self, places):
        corner = self.largest(self.editor.look())[:2]
        for n, place in enumerate(places):
            self.screen.move(*(c + m + p for c, m, p in zip(corner, MAP_CORNER, place)))
            time.sleep(0.03)
            if n == 0:
                self.screen.button(1, 1)
        self.screen.button(1, 0)
        time.sleep(0.05)

    def turn_down(self, notches):
        for _ in range(notches):
            self.screen.button(WHEEL_DOWN, 1)
            self.screen.button(WHEEL_DOWN, 0)

    def name_it(self, name, title):
        self.wait(lambda look: look.dialog.strip() == title)
        time.sleep(0.1)
        for letter in name:
            self.screen.key(letter)
            time.sleep(0.01)
        time.sleep(0.1)
        self.screen.key("Return")

    def answer_yes(self, title):
        self.wait(lambda look: look.dialog.strip() == title)
        time.sleep(0.1)
        self.screen.key("y", "Alt_L")

    def import_map(self, name):
        self.click(MENU)
        self.click(IMPORT)
        self.name_it(name, "Select Image to Import")

    def new_map(self):
        self.click(MENU)
        self.click(NEW_MAP)
        self.answer_yes("Start New Map?")
        self.choose_size()

    def look_at_help(self):
        self.click(HELP)
        self.wait(self.help_window)
        self.click([sum(pair) for pair in zip(self.help_window(self.editor.look()), HELP_CLOSE)],
                   over=True)
        self.wait(lambda look: not self.help_window(look))

    def help_window(self, look):
        return next((window[:2] for window in look.windows if 500 < window[2] < 600), None)

    def save(self, name):
        self.click(MENU)
        self.click(SAVE)
        self.name_it(name, "Save Terrain")

    def keep_set(self, name):
        self.screen.move(*(sum(pair) for pair in zip(self.largest(self.editor.look())[:2], STRIP)))
        self.turn_down(60)
        time.sleep(0.3)
        self.click(ADD_COLOR)
        self.name_it(name, "Save Color Set")

    def wait_until_done(self):
        self.wait(lambda look: not look.dialog and not look.is_busy)
