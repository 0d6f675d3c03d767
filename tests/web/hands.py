"""Mouse, keyboard and pictures of the X screen, in its own pixels."""
import contextlib
import ctypes
import pathlib
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "monkey/screen"))
import x_monkey  # noqa: E402  (stands beside the tests that wear out the desk)

ALL_PLANES = ctypes.c_ulong(-1)
Z_PIXMAP = 2
FIRST_BUTTON = 1 << 8  # its bit in the state of the pointer
PATIENCE = 60  # seconds for the X server and the window manager
POLL = 0.001
WHEEL_UP, WHEEL_DOWN = 4, 5  # buttons
NAMES = {"\n": "Return", "\t": "Tab"}


class HandsError(Exception):
    """A key that the keyboard has not, a place outside the screen, or no screen any more."""


# A screen that goes ends who uses it, in the midst of a call, unless both procedures return.
gone = set()  # displays, which must not be closed then
SCREEN_GOES = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p)(lambda display: gone.add(display) or 0)
SCREEN_GONE = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p)(lambda display, data: None)


class XImage(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int),
                ("bitmap_unit", ctypes.c_int), ("bitmap_bit_order", ctypes.c_int),
                ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int), ("bits_per_pixel", ctypes.c_int)]


class Picture:
    """Pixels of the screen: width x height triples of bytes, red, green and blue, row by row."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    def at(self, x, y):
        if not (0 <= x < self.width and 0 <= y < self.height):
            raise HandsError(f"{x}, {y} is outside a picture of {self.width} x {self.height}")
        start = (y * self.width + x) * 3
        return tuple(self.data[start:start + 3])

    def row(self, y):
        return self.data[y * self.width * 3:(y + 1) * self.width * 3]

    def save(self, path):
        """As a portable pixmap."""
        pathlib.Path(path).write_bytes(b"P6 %d %d 255\n" % (self.width, self.height) + self.data)


class Hands(x_monkey.Screen):
    def __init__(self):
        super().__init__()
        self.x.XKeysymToString.restype = ctypes.c_char_p
        self.x.XkbKeycodeToKeysym.restype = ctypes.c_ulong
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XGetImage.restype = ctypes.POINTER(XImage)
        self.root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))
        self.keys_held = []
        self.x.XSetIOErrorHandler(SCREEN_GOES)
        self.x.XSetIOErrorExitHandler(self.display, SCREEN_GONE, None)

    def close(self):
        try:
            self.let_go()
        finally:
            if self.display.value not in gone:
                self.x.XCloseDisplay(self.display)

    def let_go(self):
        super().let_go()
        for name in list(self.keys_held):
            self.release_key(name)

    def move(self, x, y):
        super().move(x, y)
        self.wait(lambda place, buttons: place == (x, y), f"the pointer does not come to {x}, {y}")

    def button(self, number, is_down):
        super().button(number, is_down)
        sign = FIRST_BUTTON << (number - 1)
        self.wait(lambda place, buttons: bool(buttons & sign) == bool(is_down),
                  f"button {number} does not go {'down' if is_down else 'up'}")

    def wait(self, holds, wrong):
        """Until the X server has done it. A window manager that looks at a press first stops the
        pointer for a while, and what is sent meanwhile would be told at a wrong place."""
        root, child = ctypes.c_ulong(), ctypes.c_ulong()
        x, y, in_x, in_y, state = (ctypes.c_int() for _ in range(5))
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if not self.x.XQueryPointer(self.display, self.root, *map(ctypes.byref, (
                    root, child, x, y, in_x, in_y, state))):
                raise HandsError("the screen is gone")
            if holds((x.value, y.value), state.value):
                return
            time.sleep(POLL)
        raise HandsError(wrong)

    def key(self, name, *holding):
        for each in (name, *holding):
            self.code(each)
        super().key(name, *holding)

    def press_key(self, name):
        self.turn_key(name, 1)
        self.keys_held.append(name)

    def release_key(self, name):
        self.turn_key(name, 0)
        self.keys_held.remove(name)

    @contextlib.contextmanager
    def holding(self, *names):
        """The keys are down for the time of a with statement."""
        for name in names:
            self.press_key(name)
        try:
            yield
        finally:
            for name in reversed(names):
                self.release_key(name)

    def type(self, text):
        for letter in text:
            sign = ord(letter) if ord(letter) < 0x100 else 0x1000000 | ord(letter)
            name = NAMES.get(letter) or (self.x.XKeysymToString(ctypes.c_ulong(sign)) or b"").decode()
            code = self.code(name, letter)
            signs = [self.x.XkbKeycodeToKeysym(self.display, code, 0, level) for level in (0, 1)]
            if letter in NAMES or sign == signs[0]:
                self.key(name)
            elif sign == signs[1]:
                self.key(name, "Shift_L")
            else:
                raise HandsError(f"the keyboard has no {letter!r}")

    def code(self, name, shown=None):
        """The number of a key; `shown` is what it is called in a failure."""
        sign = self.x.XStringToKeysym(name.encode())
        code = self.x.XKeysymToKeycode(self.display, ctypes.c_ulong(sign)) if sign else 0
        if code == 0:
            raise HandsError(f"the keyboard has no {shown or name!r}")
        return code

    def turn_key(self, name, is_down):
        self.test.XTestFakeKeyEvent(self.display, self.code(name), is_down, ctypes.c_ulong(0))
        self.flush()

    def picture(self, left, top, width, height):
        if left < 0 or top < 0 or width < 1 or height < 1 \
                or left + width > self.width or top + height > self.height:
            raise HandsError(f"{width} x {height} pixels at {left}, {top} are not all on a screen of "
                             f"{self.width} x {self.height}")
        found = self.x.XGetImage(self.display, self.root, left, top, width, height, ALL_PLANES, Z_PIXMAP)
        if not found:
            raise HandsError("the screen gives no picture")
        image = found.contents
        try:
            if image.bits_per_pixel != 32 or image.byte_order != 0:
                raise HandsError(f"pixels of {image.bits_per_pixel} bits are not known here")
            raw = ctypes.string_at(image.data, image.bytes_per_line * height)
        finally:
            self.x.XFree(ctypes.c_void_p(image.data))
            self.x.XFree(found)
        pixels = bytearray(width * height * 3)
        for channel in range(3):  # rows of 32 bit pixels have no gaps between them
            pixels[channel::3] = raw[2 - channel::4]
        return Picture(width, height, bytes(pixels))
