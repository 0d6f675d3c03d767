"""What the tests of the editor's page share: the one browser, and the desk in it."""
import time
import unittest

from desk import Desk, twin

PAGE = None  # of the browser that in_browser.py started
KIND = ""

# Where the screen shows a surface: left, top, side lengths with the border, border, in units of the editor.
SURFACES = {"MapView": (8, 88, 257, 257, 0), "Picker": (275, 86, 28, 260, 2), "ZoomView": (8, 26, 57, 57, 0)}
SEE_THROUGH = "ZoomView"  # its black shows what is below
LATEST = 5  # seconds until the screen shows what the page has painted


def read_pixmap(path):
    """Width and the pixels of a surface that the headless tool left."""
    kind, width, height, most, data = path.read_bytes().split(maxsplit=4)
    assert (kind, most) == (b"P6", b"255")
    # A pixel that begins like a blank belongs to the data, which is a whole number of pixels.
    size = int(width) * int(height) * 3
    return int(width), int(height), path.read_bytes()[-size:]


def nearest(count, seen):
    """Which of so many pixels is seen where, over the length of others. The middle of a pixel that
    falls between two shows the first."""
    return [((2 * n + 1) * count - 1) // (2 * seen) for n in range(seen)]


class PageCase(unittest.TestCase):
    """Each test ends with a look at what the page asked of the network: nothing."""

    maxDiff = 2000

    def setUp(self):
        self.page = PAGE
        self.desk = Desk(PAGE)

    def tearDown(self):
        self.page.hands.let_go()
        if not self.desk.has_front():  # a dialog of the browser, where a test went wrong
            self.page.key("Escape")
        self.assertEqual(self.page.requests(), [])

    def assert_same_file(self, file, name, lines):
        """The file of the page is what the headless tool saves under the name."""
        with twin(lines) as folder:
            page, desktop = file.read_bytes(), (folder / name).read_bytes()
            self.assertEqual(len(page), len(desktop))
            wrong = [at for at, byte in enumerate(page) if byte != desktop[at]]
            self.assertEqual(wrong[:5], [], f"{len(wrong)} bytes differ")

    def assert_same_surfaces(self, *names):
        """The screen shows each surface as the headless tool has it after the same, pixel for pixel."""
        # Away from the surfaces, whose looks follow the pointer.
        self.desk.move("Form1", 5, 350)
        self.desk.rest()
        dumps = [f"dump surface Form1.{name} {name}.ppm" for name in names]
        with twin(self.desk.lines + dumps) as folder:
            for name in names:
                with self.subTest(surface=name):
                    self.check_surface(name, *read_pixmap(folder / f"{name}.ppm"))

    def check_surface(self, name, width, height, data):
        left, top, across, down, border = SURFACES[name]
        self.assertEqual((width, height), (across - 2 * border, down - 2 * border))
        scale = self.desk.scale()
        left, top, right, bottom = (int(each * scale + 0.5)
                                    for each in (left, top, left + across, top + down))
        edge = int(border * scale + 0.5)
        place = left + edge, top + edge, right - left - 2 * edge, bottom - top - 2 * edge
        columns, rows = nearest(width, place[2]), nearest(height, place[3])
        expected = []
        for y in rows:
            row = data[y * width * 3:(y + 1) * width * 3]
            pixels = [row[3 * x:3 * x + 3] for x in range(width)]
            expected.append(b"".join(pixels[x] for x in columns))
        end = time.monotonic() + LATEST
        wrong = self.count_wrong(name, place, expected)
        while wrong and time.monotonic() < end:  # the screen comes after the page
            wrong = self.count_wrong(name, place, expected)
        self.assertEqual(wrong, 0, "rows of pixels that differ")

    def count_wrong(self, name, place, expected):
        """Rows of which the screen shows another picture."""
        shown = self.desk.pixels("Form1", *place)
        rows = [shown.row(y) for y in range(shown.height)]
        if name == SEE_THROUGH:
            rows = [b"".join(seen[n:n + 3] if row[n:n + 3] != bytes(3) else bytes(3)
                             for n in range(0, len(row), 3)) for seen, row in zip(rows, expected)]
        return sum(seen != row for seen, row in zip(rows, expected))
