#!/usr/bin/python3
"""The module by which tests work real browsers, tried on a page that writes down what arrives:

    tools/with_screen.sh 1920x1080 tests/web/test_browser.py [ChromiumTest] [FirefoxTest] [OtherTest]"""
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import browser  # noqa: E402
import wire  # noqa: E402

GROUND, LEAF, SKY = (20, 30, 40), (200, 120, 10), (10, 120, 200)
FIELD = (101, 61, 203, 99)  # left, top, width, height of the canvas in CSS pixels; SKY is its right half
HALF = 100
SAVED = bytes(range(256)) * 300
SAVE, AGAIN = (420, 80), (420, 140)  # places on the link that saves and the button that asks
NOBODY, NOT_THERE = "http://127.0.0.1:1/", "https://name.invalid/x"
PAGE = """<!DOCTYPE html><meta charset=utf-8><title>A page to try</title><style>
html { background: rgb%(ground)s } body { margin: 0 }
canvas, a, button { position: absolute; outline: none }
canvas { left: %(left)dpx; top: %(top)dpx; width: %(width)dpx; height: %(height)dpx }
a, button { left: 400px; width: 100px; height: 40px } a { top: 60px; background: white } button { top: 120px }
</style><canvas></canvas><a download="bytes.bin">save</a><button>ask</button><script>
const seen = [], field = document.querySelector("canvas"), link = document.querySelector("a");
let isReady = false;
for (const kind of ["pointerdown", "pointermove", "pointerup", "click", "dblclick", "contextmenu", "wheel",
                    "keydown", "keyup"])
    addEventListener(kind, event => {
        if (kind === "wheel" || kind === "contextmenu") event.preventDefault();
        seen.push({kind, x: event.clientX, y: event.clientY, button: event.button, buttons: event.buttons,
                   key: event.key, shift: event.shiftKey, delta: event.deltaY});
    }, {passive: false});
const of = (...kinds) => seen.filter(event => kinds.includes(event.kind));
function draw() {
    field.width = Math.round(%(width)d * devicePixelRatio);
    field.height = Math.round(%(height)d * devicePixelRatio);
    const pen = field.getContext("2d");
    pen.fillStyle = "rgb%(leaf)s";
    pen.fillRect(0, 0, field.width, field.height);
    pen.fillStyle = "rgb%(sky)s";
    pen.fillRect(Math.round(%(half)d * devicePixelRatio), 0, field.width, field.height);
}
draw();
link.href = URL.createObjectURL(new Blob([Uint8Array.from({length: %(length)d}, (_, n) => n & 255)]));
document.querySelector("button").onclick = () => { document.title = confirm("Shall it?") ? "yes" : "no"; };
setTimeout(() => { isReady = true; }, 300);
</script>""" % dict(zip(("left", "top", "width", "height"), FIELD), ground=GROUND, leaf=LEAF, sky=SKY,
                    half=HALF, length=len(SAVED))


class Page:
    """What both browsers have to do; `kind` names one."""

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        cls.file = cls.folder / "a page & more.html"
        cls.file.write_text(PAGE)
        cls.page = cls.enterClassContext(browser.start(cls.kind, cls.folder / "saved"))
        print(f"{cls.kind}: of use after {cls.page.start_seconds:.1f} s", file=sys.stderr)

    def setUp(self):
        self.open(self.page)

    def open(self, page):
        page.open(self.file)
        page.wait_for("isReady")
        self.wait_for_pixel(page, 10, 10, GROUND)

    def wait_for_pixel(self, page, x, y, color):
        """The screen comes after the script."""
        page.wait_for("new Promise(done => requestAnimationFrame(() => requestAnimationFrame(() => done(1))))")
        for _ in range(400):
            if page.picture(x, y, 1, 1).at(0, 0) == color:
                return
            page.evaluate("new Promise(done => setTimeout(done, 25))")
        self.assertEqual(page.picture(x, y, 1, 1).at(0, 0), color)

    def events(self, expression, count, page=None):
        """That many events of the kinds have come, and no more."""
        page = page or self.page
        page.wait_for(f"{expression}.length >= {count}")
        page.evaluate("new Promise(done => setTimeout(done, 100))")
        found = page.evaluate(expression)
        self.assertEqual(len(found), count, found)
        return found

    def test_values_come_as_they_are(self):
        for expression, value in (("1 + 1", 2), ("'Gr\\u00fc\\u00dfe \\ud83c\\udfd4'", "Gr\u00fc\u00dfe \U0001f3d4"),
                                  ("({a: [1.5, true, null]})", {"a": [1.5, True, None]}), ("undefined", None),
                                  ("new Promise(done => setTimeout(() => done([7]), 50))", [7]),
                                  ("document.title // a remark", "A page to try"),
                                  ("'x'.repeat(300000)", "x" * 300000), (f"'{'y' * 70000}'.length", 70000)):
            self.assertEqual(self.page.evaluate(expression), value)

    def test_failures_tell_what_and_where(self):
        for expression, words in (("noSuchThing.x", "ReferenceError.*noSuchThing"), ("(", "SyntaxError"),
                                  ("Promise.reject(new RangeError('too far'))", "RangeError.*too far"),
                                  ("new Promise(() => 0)", r"no answer in 1 s.*new Promise\(\(\) => 0\)")):
            with self.assertRaisesRegex(browser.BrowserError, words):
                self.page.evaluate(expression, 1)
        with self.assertRaisesRegex(browser.BrowserError, "not true in 0.3 s: seen === 0"):
            self.page.wait_for("seen === 0", 0.3)
        with self.assertRaisesRegex(browser.BrowserError, "not true in 0.3 s: later.x: .*later"):
            self.page.wait_for("later.x", 0.3)
        with self.assertRaises(browser.BrowserError):
            self.page.open(self.folder / "not there.html")
        self.assertEqual(self.page.evaluate("2 + 2"), 4)

    def test_waits_until_it_is_true(self):
        self.page.evaluate("void setTimeout(() => { globalThis.late = {is: 'there'}; }, 400)")
        self.assertEqual(self.page.wait_for("late.is"), "there")

    def test_page_fills_the_screen(self):
        page = self.page
        self.assertEqual((page.left, page.top, page.ratio), (0, 0, 1))
        self.assertEqual([page.width, page.height], [page.hands.width, page.hands.height])
        self.assertEqual(page.evaluate("[innerWidth, innerHeight]"), [page.width, page.height])

    def click_places(self, page):
        """Each is a whole pixel of the screen."""
        places = [(0, 0), (4, 8), (100, 60), (152, 96), (644, 376)]
        if page.ratio in (1, 2):
            places += [(3, 2), (101, 61), (643, 377), (page.width - 1, page.height - 1)]
        for place in places:
            page.click(*place)
        for kind in ("pointerdown", "pointerup", "click"):
            found = self.events(f"of('{kind}')", len(places), page)
            self.assertEqual([(event["x"], event["y"]) for event in found], places, kind)
        return found

    def test_click_arrives_at_its_place(self):
        self.assertEqual({event["button"] for event in self.click_places(self.page)}, {0})

    def test_other_buttons(self):
        self.page.click(150, 90, button=2)
        self.page.click(170, 90, button=3)
        found = self.events("of('pointerdown')", 2)
        self.assertEqual([(e["x"], e["button"]) for e in found], [(150, 1), (170, 2)])
        self.events("of('contextmenu')", 1)

    def test_double_click(self):
        self.page.double_click(150, 90)
        found = self.events("of('dblclick')", 1)
        self.assertEqual((found[0]["x"], found[0]["y"]), (150, 90))
        self.events("of('click')", 2)

    def test_move_press_and_release(self):
        self.page.move(200, 100)
        self.page.wait_for("of('pointermove').some(e => e.x === 200 && e.y === 100 && e.buttons === 0)")
        self.page.press(210, 110)
        self.events("of('pointerdown')", 1)
        self.page.move(220, 120)
        self.page.wait_for("of('pointermove').some(e => e.x === 220 && e.y === 120 && e.buttons === 1)")
        self.events("of('pointerup')", 0)
        self.page.release(230, 130)
        found = self.events("of('pointerup')", 1)
        self.assertEqual((found[0]["x"], found[0]["y"]), (230, 130))

    def test_drag_goes_through_its_places(self):
        places = [(110, 70), (130, 80), (200, 150), (300, 90)]
        self.page.drag(*places, pause=0.1)
        self.events("of('pointerup')", 1)
        found = self.page.evaluate("of('pointerdown', 'pointermove', 'pointerup').filter(e => e.buttons || "
                                   "e.kind === 'pointerup').map(e => [e.x, e.y])")
        self.assertEqual((tuple(found[0]), tuple(found[-1])), (places[0], places[-1]))
        self.assertLess(set(map(tuple, found)), set(places) | {()})

    def test_wheel(self):
        """Steps may come together; what counts is how far they go."""
        ways = []
        for steps in (2, -1):
            self.page.evaluate("void (seen.length = 0)")
            self.page.wheel(150, 90, steps)
            self.page.wait_for("of('wheel').length")
            self.page.evaluate("new Promise(done => setTimeout(done, 300))")
            ways.append(self.page.evaluate("of('wheel').reduce((sum, e) => sum + e.delta, 0)"))
            self.assertEqual(self.page.evaluate("[...new Set(of('wheel').map(e => e.x + ' ' + e.y))]"), ["150 90"])
        self.assertGreater(ways[0], 0)
        self.assertEqual(ways[0], -2 * ways[1])

    def test_keys_arrive_without_a_click(self):
        self.page.key("Return")
        self.page.key("Left")
        self.page.key("F4")
        self.page.key("z", "Control_L", "Shift_L")
        found = self.events("of('keydown')", 6)
        self.assertEqual([e["key"] for e in found], ["Enter", "ArrowLeft", "F4", "Control", "Shift", "Z"])
        self.events("of('keyup')", 6)
        with self.assertRaisesRegex(browser.BrowserError, "no 'NoSuchKey'"):
            self.page.key("NoSuchKey")

    def test_letters_arrive(self):
        self.page.evaluate("void (field.outerHTML = '<textarea autofocus></textarea>', "
                           "document.querySelector('textarea').focus())")
        text = "Ridge_7: 3/4 (a+b) <\"\u007e'> \\ {Q}\n@ #1;%"
        self.page.type(text)
        self.page.wait_for(f"document.querySelector('textarea').value.length >= {len(text)}")
        self.assertEqual(self.page.evaluate("document.querySelector('textarea').value"), text)
        with self.assertRaisesRegex(browser.BrowserError, "no '\u4e2d'"):
            self.page.type("\u4e2d")

    def test_keys_are_held_for_a_click(self):
        with self.page.holding("Shift_L"):
            self.page.click(150, 90)
            self.events("of('click')", 1)
            self.events("of('keyup')", 0)
        self.events("of('keyup')", 1)
        self.page.click(250, 90)
        self.assertEqual([e["shift"] for e in self.events("of('click')", 2)], [True, False])

    def check_picture(self, page):
        """All of the page: the field stands where it should, to the pixel."""
        ratio = page.ratio
        left, top, width, height = FIELD
        whole = page.picture()
        self.assertEqual((whole.width, whole.height), (page.hands.width, page.hands.height))
        edges = [round(n * ratio) for n in (left, left + HALF, left + width, top, top + height)]
        x0, x1, x2, y0, y1 = edges
        for x, color in ((x0 - 1, GROUND), (x0, LEAF), (x1 - 1, LEAF), (x1, SKY), (x2 - 1, SKY), (x2, GROUND)):
            for y in (y0, y1 - 1):
                self.assertEqual(whole.at(x, y), color, (x, y))
            for y in (y0 - 1, y1):
                self.assertEqual(whole.at(x, y), GROUND, (x, y))
        part = page.picture(left, top, width, height)
        self.assertEqual((part.width, part.height), (x2 - x0, y1 - y0))
        row = bytes(LEAF) * (x1 - x0) + bytes(SKY) * (x2 - x1)
        self.assertEqual(part.data, row * part.height)

    def test_pixels_are_seen_where_they_are(self):
        self.check_picture(self.page)
        with self.assertRaisesRegex(browser.BrowserError, "not all on a screen"):
            self.page.picture(self.page.width - 5, 0, 10, 10)
        file = self.folder / "part.ppm"
        self.page.picture(*FIELD[:2], 2, 1).save(file)
        self.assertEqual(file.read_bytes(), b"P6 2 1 255\n" + bytes(LEAF) * 2)

    def test_other_pixel_ratios(self):
        for ratio in (2, 1.25):
            with self.subTest(ratio=ratio), browser.start(self.kind, pixel_ratio=ratio) as page:
                self.open(page)
                self.assertEqual(page.ratio, ratio)
                self.click_places(page)
                page.move(700, 500)
                if ratio == 2:  # at a fraction, edges of the field fall between two pixels
                    self.check_picture(page)
                else:
                    self.assertEqual(page.picture(140, 80, 20, 20).data, bytes(LEAF) * 625)

    def test_download_arrives_whole(self):
        self.page.move(10, 10)
        before = self.page.picture()
        for name in ("bytes.bin", "bytes"):  # the second gets a name of its own
            self.page.click(*SAVE)
            file = self.page.download()
            self.assertEqual(file.parent, self.page.downloads)
            self.assertTrue(file.name.startswith(name) and file.suffix == ".bin", file)
            self.assertEqual(file.read_bytes(), SAVED)
        self.assertEqual(len(list(self.page.downloads.iterdir())), 2)
        with self.assertRaisesRegex(browser.BrowserError, "nothing was saved in 0.5 s.*bytes.bin"):
            self.page.download(0.5)
        self.page.move(10, 10)
        self.page.key("Escape")  # which shows a list of what was saved where it may
        self.page.evaluate("void document.activeElement.blur()")
        for _ in range(300):  # a note of the browser goes by itself
            if self.page.picture().data == before.data:
                break
            self.page.evaluate("new Promise(done => setTimeout(done, 100))")
        self.assertTrue(self.page.picture().data == before.data, "something lies over the page")

    def test_requests_are_told(self):
        self.page.evaluate("fetch(link.href).then(answer => answer.text()).then(text => text.length)")
        self.page.evaluate("fetch('data:,x').then(() => 0)")
        self.assertEqual(self.page.requests(), [])
        for start, address in ((f"fetch('{NOBODY}a').catch(() => 0)", NOBODY + "a"),
                               (f"Object.assign(new Image(), {{src: '{NOBODY}b'}}).src", NOBODY + "b"),
                               (f"fetch('{NOT_THERE}').catch(() => 0)", NOT_THERE),
                               ("new WebSocket('ws://127.0.0.1:1/c').url", self.socket_told),
                               (f"new Worker(URL.createObjectURL(new Blob([\"fetch('{NOBODY}d')\"]))) && 0",
                                NOBODY + "d")):
            self.page.evaluate(start)
            for _ in range(200):
                if address in self.page.requests():
                    break
                self.page.evaluate("new Promise(done => setTimeout(done, 50))")
            self.assertIn(address, self.page.requests())
        if self.kind == "chromium":
            beside = self.page.evaluate("Object.assign(new Image(), {src: 'beside.png'}).src")
            self.page.wait_for("new Promise(done => setTimeout(() => done(1), 200))")
            self.assertIn(beside, self.page.requests())
        self.page.open(self.file)
        self.assertEqual(self.page.requests(), [])

    def test_question_is_the_users(self):
        for key, answer in (("Return", "yes"), ("Escape", "no")):
            self.page.click(*AGAIN)
            with self.assertRaisesRegex(browser.BrowserError, "no answer in 2 s"):
                for _ in range(100):
                    self.page.evaluate("new Promise(done => setTimeout(done, 50))", 2)
            self.page.key(key)
            self.assertEqual(self.page.wait_for(f"document.title === '{answer}' && document.title"), answer)

    def test_nothing_stays(self):
        with self.assertRaisesRegex(ZeroDivisionError, "on purpose"):
            with browser.start(self.kind) as page:
                program = page.program
                self.assertGreater(len(program.processes()), 2)
                file = page.downloads
                self.assertTrue(file.is_dir())
                raise ZeroDivisionError("on purpose")
        self.assertEqual(program.processes(), [])
        self.assertFalse(program.folder.exists())
        self.assertEqual(self.mentioning(program.folder), [])

    def mentioning(self, folder):
        """Who names the folder, but those that have ended and wait to be taken note of."""
        found = []
        for path in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if any(str(folder).encode() in (path / name).read_bytes() for name in ("cmdline", "environ")):
                    found.append(path.name)
            except OSError:  # gone, or another user's
                pass
        return found

    def test_nothing_stays_of_who_is_asked_to_end(self):
        script = ("import sys, time, browser\n"
                  f"with browser.start('{self.kind}') as page:\n"
                  "    print(page.program.folder, flush=True)\n"
                  "    time.sleep(600)\n")
        with subprocess.Popen([sys.executable, "-c", script], text=True, stdout=subprocess.PIPE,
                              cwd=pathlib.Path(__file__).resolve().parent) as user:
            folder = pathlib.Path(user.stdout.readline().strip())
            self.assertTrue((folder / "profile").is_dir())
            user.terminate()
            self.assertEqual(user.wait(browser.PATIENCE), 128 + signal.SIGTERM)
        self.assertFalse(folder.exists())
        self.assertEqual(self.mentioning(folder), [])

    def test_end_of_the_browser_is_told(self):
        with browser.start(self.kind) as page:
            page.program.process.kill()
            with self.assertRaisesRegex(browser.BrowserError, "ended with -9|hung up"):
                for _ in range(100):
                    page.evaluate("1")
            program = page.program
        self.assertFalse(program.folder.exists())


class ChromiumTest(Page, unittest.TestCase):
    kind, socket_told = "chromium", "ws://127.0.0.1:1/c"


class FirefoxTest(Page, unittest.TestCase):
    kind, socket_told = "firefox", NOBODY + "c"


class OtherTest(unittest.TestCase):
    def test_nobody_listens(self):
        with self.assertRaisesRegex(wire.WireError, "no browser listens at port 1:"):
            wire.Wire(1, "/", None, 5)

    def test_screen_that_goes_is_told(self):
        script = ("import hands\n"
                  "mine = hands.Hands()\n"
                  "print('here', flush=True)\n"
                  "input()\n"
                  "try:\n"
                  "    mine.button(1, 1)\n"
                  "except hands.HandsError as error:\n"
                  "    print(error, flush=True)\n"
                  "mine.held.clear()\n"
                  "mine.close()\n")
        with subprocess.Popen(["Xvfb", "-displayfd", "1", "-nolisten", "tcp"], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True) as screen:
            environment = dict(os.environ, DISPLAY=":" + screen.stdout.readline().strip())
            with subprocess.Popen([sys.executable, "-c", script], env=environment, text=True,
                                  cwd=pathlib.Path(__file__).resolve().parent, stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as user:
                self.assertEqual(user.stdout.readline(), "here\n")
                screen.kill()
                screen.wait()
                self.assertEqual(user.communicate("\n", browser.PATIENCE)[0], "the screen is gone\n")
                self.assertEqual(user.returncode, 0)

    def test_browser_that_is_not_here(self):
        kept = os.environ["PATH"]
        os.environ["PATH"] = "/nowhere"
        try:
            with self.assertRaisesRegex(browser.BrowserError, "firefox is not here: no firefox-esr or firefox"):
                browser.start("firefox").__enter__()
        finally:
            os.environ["PATH"] = kept


if __name__ == "__main__":
    unittest.main(verbosity=2)
