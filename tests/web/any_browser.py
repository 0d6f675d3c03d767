"""What all browsers have in common: the page, the user's hands, and the start. A kind adds run(),
connect(), navigate(), run_script(), hear() and touch()."""
import contextlib
import json
import math
import pathlib
import time

import hands
import program
import wire

PATIENCE = 60  # seconds for an answer, on a busy machine
START_PATIENCE = 180
POLL = 0.05
DRAG_PAUSE = 0.02  # seconds from place to place, more than a frame
START_COLOR = (0x12, 0x9A, 0xE7)
START_PAGE = f"<!DOCTYPE html><title>Start</title><style>html {{ background: rgb{START_COLOR} }}</style>"
SILENT = ("data:", "blob:", "about:")  # addresses that ask no one
TINY = 1e-6  # of a pixel, lost in a multiplication


class BrowserError(Exception):
    pass


@contextlib.contextmanager
def told():
    """What the parts complain of is a BrowserError to who uses them."""
    try:
        yield
    except (wire.WireError, program.ProgramError, hands.HandsError) as error:
        raise BrowserError(str(error)) from error


class Browser:
    """A page of its own profile. `left` and `top` are its corner in pixels of the screen, `ratio` is
    its devicePixelRatio, `width` and `height` are its size in CSS pixels, `downloads` is the
    folder of what it saves, `start_seconds` is what it took until it was of use."""

    name, commands = "", ()

    def __init__(self, downloads=None, pixel_ratio=1):
        self.pixel_ratio = pixel_ratio
        self.downloads = pathlib.Path(downloads).resolve() if downloads else None
        self.program = self.wire = self.hands = None
        self.opened = ""
        self.asked, self.saved = [], []  # addresses; files that are whole
        self.left = self.top = self.width = self.height = 0
        self.ratio = self.start_seconds = 0.0

    def __enter__(self):
        began = time.monotonic()
        try:
            with told():
                self.hands = hands.Hands()
                self.program = program.Program(self.name)
                if self.downloads is None:
                    self.downloads = self.program.folder / "downloads"
                    self.downloads.mkdir()
                profile = self.program.folder / "profile"
                profile.mkdir()
                start = self.program.folder / "start.html"
                start.write_text(START_PAGE)
                self.opened = start.as_uri()
                self.run(profile, self.opened)
                self.connect(profile, began + START_PATIENCE)
                self.measure(began + START_PATIENCE)
        except BaseException:
            self.close()
            raise
        self.start_seconds = time.monotonic() - began
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        """The program first, which goes even where the screen is gone and the hands fail."""
        with told():
            try:
                if self.wire:
                    self.wire.close()
                if self.program:
                    self.program.close()
            finally:
                self.wire = self.program = None
                if self.hands:
                    self.hands.close()
                    self.hands = None

    # What the page is and does.

    def open(self, place, seconds=PATIENCE):
        """Goes to a file or an address and waits until it is loaded."""
        self.opened = str(place) if "://" in str(place) else pathlib.Path(place).resolve().as_uri()
        self.asked.clear()
        with told():
            self.navigate(self.opened, seconds)
        self.wait_for("document.readyState === 'complete'", seconds)

    def evaluate(self, expression, seconds=PATIENCE):
        """The value of a JavaScript expression, a promise awaited, as what JSON makes of it."""
        source = f"(async () => JSON.stringify(await ({expression}\n)))()"
        with told():
            self.program.check()
            value = self.run_script(source, seconds)
        return None if value is None else json.loads(value)

    def wait_for(self, expression, seconds=PATIENCE):
        """Until a JavaScript expression is true, the value of which is returned. One that throws is
        not true yet."""
        end = time.monotonic() + seconds
        while True:
            wrong = ""
            try:
                value = self.evaluate(expression, max(1, end - time.monotonic()))
                if value:
                    return value
            except BrowserError as error:
                wrong = f": {error}"
                if "SyntaxError" in wrong:
                    raise
                with told():
                    self.program.check()
            if time.monotonic() > end:
                raise BrowserError(f"not true in {seconds:g} s: {expression}{wrong}")
            time.sleep(POLL)

    def requests(self):
        """The addresses that the page asked for since open(), but its own and data: and blob:. Firefox
        tells of no file: and calls a ws: http:."""
        self.evaluate("0")  # what was told before is heard with the answer
        own = self.opened.partition("#")[0]
        return [url for url in self.asked
                if not url.startswith(SILENT) and url.partition("#")[0] != own]

    def download(self, seconds=PATIENCE):
        """The next file that was saved whole, in the order of their ends. Chromium lays a note over
        the page for some seconds, at the top in the middle."""
        end = time.monotonic() + seconds
        while not self.saved:
            self.evaluate("0")
            if self.saved:
                break
            if time.monotonic() > end:
                there = sorted(path.name for path in self.downloads.iterdir())
                raise BrowserError(f"nothing was saved in {seconds:g} s; {self.downloads} has {there}")
            time.sleep(POLL)
        name = self.saved.pop(0)
        if name is None:
            raise BrowserError("the page's file was not saved: its download was given up")
        return pathlib.Path(name)

    # What a user does.

    def move(self, x, y):
        """What follows is sent once the pointer is there."""
        with told():
            self.hands.move(*self.on_screen(x, y))

    def press(self, x, y, button=1):
        self.move(x, y)
        self.turn(button, 1)

    def release(self, x, y, button=1):
        self.move(x, y)
        self.turn(button, 0)

    def click(self, x, y, button=1):
        """Two at a place in half a second are a double click."""
        self.press(x, y, button)
        self.turn(button, 0)

    def double_click(self, x, y, button=1):
        self.click(x, y, button)
        self.click(x, y, button)

    def drag(self, *places, button=1, pause=DRAG_PAUSE):
        """Pressed at the first place, released at the last. A busy browser may leave out moves."""
        self.press(*places[0], button)
        for place in places[1:]:
            time.sleep(pause)
            self.move(*place)
        time.sleep(pause)
        self.turn(button, 0)

    def wheel(self, x, y, steps):
        """Down, or up with a number below zero. Firefox may tell of several steps at once."""
        self.move(x, y)
        number = hands.WHEEL_DOWN if steps > 0 else hands.WHEEL_UP
        for _ in range(abs(steps)):
            self.turn(number, 1)
            self.turn(number, 0)

    def turn(self, button, is_down):
        with told():
            self.hands.button(button, is_down)

    def key(self, name, *holding):
        """A key by its X name (a, Return, Left, F4), while others are held (Shift_L, Control_L)."""
        with told():
            self.hands.key(name, *holding)

    @contextlib.contextmanager
    def holding(self, *names):
        """Keys are down for the time of a with statement."""
        with told(), self.hands.holding(*names):
            yield

    def type(self, text):
        with told():
            self.hands.type(text)

    def picture(self, x=0, y=0, width=None, height=None):
        """What the screen shows of a rectangle of the page, of all unless told, in pixels of the
        screen: `ratio` times as many."""
        left, top = self.on_screen(x, y)
        right, bottom = self.on_screen(self.width if width is None else x + width,
                                       self.height if height is None else y + height)
        with told():
            return self.hands.picture(left, top, right - left, bottom - top)

    def on_screen(self, x, y):
        """The first pixel of the screen inside the CSS pixel. Where x * ratio is no whole number the
        page is told of a place up to a pixel on, which Firefox rounds for a click."""
        return (self.left + math.ceil(x * self.ratio - TINY), self.top + math.ceil(y * self.ratio - TINY))

    # How it starts.

    def measure(self, end):
        """The page fills the screen, and what it believes of itself agrees with what is seen."""
        while True:
            self.program.check()
            seen = self.hands.picture(0, 0, self.hands.width, self.hands.height)
            fills = seen.data == bytes(START_COLOR) * (seen.width * seen.height)
            self.width, self.height, self.ratio, has_focus = self.evaluate(
                "[innerWidth, innerHeight, devicePixelRatio, document.hasFocus()]")
            size = [round(length * self.ratio) for length in (self.width, self.height)]
            if fills and size == [seen.width, seen.height] and has_focus:
                break
            if time.monotonic() > end:
                count = sum(seen.row(y).count(bytes(START_COLOR)) for y in range(seen.height))
                raise BrowserError(
                    f"the page does not fill the screen: {count} of {seen.width} x {seen.height} pixels "
                    f"are its own, it says {self.width} x {self.height} at {self.ratio:g}, "
                    f"{'with' if has_focus else 'without'} the keyboard{self.program.last_words()}")
            time.sleep(POLL)
        if abs(self.ratio - self.pixel_ratio) > TINY:
            raise BrowserError(f"the page has {self.ratio:g} pixels to one, not {self.pixel_ratio:g}")
