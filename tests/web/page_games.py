"""The two hidden games, whose windows have a frame of the page's making; and the red light."""
import page_case
from desk import script, twin

FRAME = "windowOf(0, '3DMaze')"
READY = f"{FRAME} && isAtRest()"


class Games(page_case.PageCase):
    def open_maze(self):
        desk = self.desk
        desk.open()
        desk.click("frmSplash", 100, 100)
        door = desk.middle("Or, you can import a map from a file:", "SizeSelect")
        desk.click("SizeSelect", *door)
        desk.click("SizeSelect", *door)
        desk.press("Small", "SizeSelect")
        desk.until("windowOf(771)")
        desk.rest()
        volcano, name = desk.middle("Volcano"), desk.middle("quillbyte")
        desk.drag("Form1", volcano, (volcano[0], 300), (500, 100), name)
        desk.until(READY)

    def box(self, selector, window="frm3DMaze"):
        """Of an element in a window's frame, CSS pixels: left, top, width, height."""
        return self.page.evaluate(
            f"(() => {{ const place = {self.desk.window(window)}.root.querySelector('{selector}')"
            ".getBoundingClientRect(); return [place.left, place.top, place.width, place.height]; })()")

    def middle_of(self, selector, window="frm3DMaze"):
        left, top, width, height = self.box(selector, window)
        return int(left + width / 2), int(top + height / 2)

    def maze(self):
        """The maze's picture once it is drawn."""
        self.desk.until(READY)
        size = self.desk.size("frm3DMaze")
        scale = size["scale"]
        return self.desk.pixels("frm3DMaze", 0, 0, size["width"] - int(20 * scale),
                                size["height"] - int(24 * scale)).data

    def choose(self, menu, entry):
        """By mouse, from the menus of the frame."""
        self.page.click(*self.middle_of(f".menu-bar button:nth-child({menu + 1})"))
        self.desk.until("page.popup.isOpen")
        left, top, width, height = self.page.evaluate(
            f"(() => {{ const place = page.popup.ground.firstChild.children[{entry}].getBoundingClientRect();"
            "return [place.left, place.top, place.width, place.height]; })()")
        self.desk.heard("menuItem", lambda: self.page.click(int(left + width / 2), int(top + height / 2)))

    def test_the_maze_is_opened_by_its_hidden_door_and_worked_by_mouse(self):
        desk = self.desk
        self.open_maze()
        unsolved = self.maze()
        self.choose(0, 1)  # Solve
        desk.wait(lambda: self.maze() != unsolved, "it is not solved")
        self.choose(0, 2)  # Clear
        desk.wait(lambda: self.maze() == unsolved, "the solution does not go")
        self.choose(1, 0)  # hexagonal rooms
        desk.wait(lambda: self.maze() != unsolved, "the style stays")
        desk.until(READY)
        hexagonal = self.maze()
        with self.subTest("the scroll bar tilts it"):
            x, y = self.middle_of(".thumb")
            desk.heard("scroll", lambda: self.page.drag((x, y), (x, y + 20), (x, y + 60)))
            desk.wait(lambda: self.maze() != hexagonal, "it does not tilt")
            tilted = self.maze()
            left, top, width, _ = self.box(".scroll-bar")
            desk.heard("scroll", lambda: self.page.click(int(left + width / 2), int(top + 3)))
            desk.wait(lambda: self.maze() != tilted, "a press beside the thumb does nothing")
        with self.subTest("the grip makes it larger"):
            before = desk.size("frm3DMaze")
            x, y = self.middle_of(".grip")
            self.assertEqual(self.page.evaluate(
                f"document.elementFromPoint({x}, {y}).className"), "grip")
            desk.heard("frameSize", lambda: self.page.drag((x, y), (x - 30, y - 20), (x - 90, y - 60)))
            desk.until(READY)
            after = desk.size("frm3DMaze")
            self.assertEqual((after["width"], after["height"]), (before["width"] - 90, before["height"] - 60))
            self.assertGreater(len(set(self.maze())), 10)
        with self.subTest("the title bar moves it"):
            x, y = self.middle_of(".title")
            desk.heard("moveFrame", lambda: self.page.drag((x, y), (x + 20, y + 20), (x + 55, y + 35)))
            desk.until(READY)
            moved = desk.size("frm3DMaze")
            self.assertEqual((moved["left"], moved["top"]), (after["left"] + 55, after["top"] + 35))
        with self.subTest("its close button closes it"):
            desk.heard("close", lambda: self.page.click(*self.middle_of(".close")))
            desk.until(f"!{FRAME}")
            self.assertTrue(desk.is_shown("Form1"))

    def test_the_worm_is_played_by_keys_and_closed(self):
        desk = self.desk
        desk.open_editor("Small")
        desk.choose("Help")
        desk.press("About", "HelpBox")
        desk.rest()
        heading = desk.middle("About Quillbyte", "HelpBox")
        desk.click("HelpBox", *heading)
        desk.click("HelpBox", *heading)
        desk.until("windowOf(0, 'Lives')")
        board = self.worm()
        desk.wait(lambda: self.worm() != board, "the worm does not creep")
        desk.heard("key", lambda: self.page.key("Down"))
        desk.heard("close", lambda: self.page.click(*self.middle_of(".close", "Form2")))
        desk.until("!windowOf(0, 'Lives')")
        desk.rest()
        self.assertTrue(desk.is_shown("Form1"))

    def worm(self):
        size = self.desk.size("Form2")
        return self.desk.pixels("Form2", 0, 0, size["width"], size["height"]).data


class Stop(page_case.PageCase):
    SLOW = """{
        const wait = page.events.wait;
        page.events.wait = function (milliseconds, wakeUp) {
            return wait.call(this, milliseconds === 0 ? 50 : milliseconds, wakeUp);
        };
    }"""  # each look of a long operation at what the user does takes this long

    def test_the_red_light_stops_a_canyon(self):
        desk = self.desk
        desk.open_editor("Large")
        desk.choose("Canyon tool")
        flat = desk.save("flat.bmp").read_bytes()
        self.page.evaluate(script(self.SLOW))
        desk.drag("Form1", *(desk.on_map(20 + 17 * n, 30 + 190 * (n % 2)) for n in range(14)))
        whole = desk.lines + ["click Form1.NTool(18)", "answer save whole.bmp", "click Form1.NTool(14)"]
        desk.press("Stop")
        desk.rest()
        stopped = desk.save("stopped.bmp").read_bytes()
        self.assertFalse(stopped == flat, "nothing was dug")
        with twin(whole) as folder:
            self.assertFalse(stopped == (folder / "whole.bmp").read_bytes(), "it was not stopped")
