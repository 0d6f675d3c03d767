"""What the tests of the editor's page share: the one browser, and the desk in it."""
import unittest

from desk import Desk, twin

PAGE = None  # of the browser that in_browser.py started
KIND = ""

# Where the screen shows a surface: left, top, side lengths in units of the editor.
SURFACES = {"MapView": (8, 88, 257, 257), "Picker": (277, 88, 24, 256), "ZoomView": (8, 26, 57, 57)}
SEE_THROUGH = "ZoomView"  # its black shows what is below


def read_pixmap(path):
    """Width and the pixels of a surface that the headless tool left."""
    kind, width, height, most, data = path.read_bytes().split(maxsplit=4)
    assert (kind, most) == (b"P6", b"255")
    # A pixel that begins like a blank belongs to the data, which is a whole number of pixels.
    size = int(width) * int(height) * 3
    return int(width), int(height), path.read_bytes()[-size:]


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
            self.assertEqual(file.read_bytes(), (folder / name).read_bytes())

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
        left, top, columns, rows = SURFACES[name]
        self.assertEqual((width, height), (columns, rows))
        scale = self.desk.scale()
        place = [round(each * scale) for each in (left, top, left + width, top + height)]
        shown = self.desk.pixels("Form1", place[0], place[1], place[2] - place[0], place[3] - place[1])
        columns = [int((x + 0.5) * width / shown.width) for x in range(shown.width)]
        wrong, count = 0, 0
        for y in range(shown.height):
            start = int((y + 0.5) * height / shown.height) * width * 3
            row = data[start:start + width * 3]
            pixels = [row[3 * x:3 * x + 3] for x in range(width)]
            expected = b"".join(pixels[x] for x in columns)
            if name == SEE_THROUGH:
                seen = [x for x in range(shown.width) if pixels[columns[x]] != bytes(3)]
                wrong += sum(shown.at(x, y) != tuple(pixels[columns[x]]) for x in seen)
                count += len(seen)
            else:
                wrong += expected != shown.row(y)
                count += shown.width
        self.assertGreater(count, 1000)
        self.assertEqual(wrong, 0, "rows, or pixels of the see-through, differ")
