"""The page's own dialogs, the keyboard, and what outlives the page."""
import page_case

EXIT = "Are you sure you want to Exit?"
SPARSE = 97  # of the screen's bytes, one is looked at
RED_CELL = "Water, low"


class Dialogs(page_case.PageCase):
    def test_a_key_that_answers_a_dialog_is_no_key_of_the_program(self):
        desk = self.desk
        desk.open_editor("Miniature")
        for key in ("Return", "Escape"):
            with self.subTest(key=key):
                desk.choose("Menu")
                desk.press("Save")
                desk.dialog("save")
                self.page.type("a.bmp")
                desk.answer_by_key(key)
                desk.rest()
                if key == "Return":
                    self.page.download()
                desk.press("Exit")
                desk.dialog("message")
                desk.answer_by_key(key)  # No has the keyboard
                desk.rest()
        self.assertEqual(self.page.evaluate("heard.key || 0"), 0)

    def test_the_exit_asks_and_ends(self):
        desk = self.desk
        desk.open_editor("Miniature")
        desk.press("Close")
        self.assertIn(EXIT, desk.dialog("message"))
        desk.answer_by_key("Escape")
        desk.rest()
        self.assertTrue(desk.is_shown("Form1"))
        desk.press("Close")
        desk.dialog("message")
        self.page.key("Tab", "Shift_L")  # from No to Yes
        desk.answer_by_key("space")
        desk.until("!document.getElementById('ended').hidden")
        self.assertEqual(self.page.evaluate("seenWindows().length"), 0)
        self.page.evaluate("document.getElementById('again').focus()")
        self.page.key("Return")
        self.page.wait_for("typeof heard === 'undefined' && page !== null && page.windows.size > 0")

    def test_the_keyboard_works_the_help(self):
        desk = self.desk
        desk.open_editor("Miniature")
        desk.choose("Help")
        desk.until(desk.window("HelpBox"))
        desk.key("Escape")
        desk.until(f"!{desk.window('HelpBox')}")
        self.assertTrue(desk.is_shown("Form1"))

    def type_color(self, *numbers):
        """Into the fields for red, green and blue, the first of which has the keyboard."""
        for number in numbers:
            self.page.key("a", "Control_L")
            self.page.type(str(number))
            self.page.key("Tab")

    def test_a_color_set_is_there_when_the_page_is_opened_again(self):
        desk = self.desk
        desk.open_editor("Miniature")
        desk.show_colors()
        desk.press(RED_CELL)
        desk.dialog("color")
        self.type_color(12, 200, 99)
        desk.answer_by_key("Return")
        desk.rest()
        self.assertEqual(self.color_of(RED_CELL), (12, 200, 99))
        desk.press("Add Color")
        desk.dialog("input")
        self.page.type("My own")
        desk.answer_by_key("Return")
        desk.rest()
        for keeps in (True, False):
            with self.subTest(keeps=keeps):
                desk.open_editor("Miniature", keeps_settings=keeps)
                desk.show_colors()
                desk.press("Current Colors")
                entries = desk.until("page.popup.isOpen && [...page.popup.ground.querySelectorAll("
                                     "'[role=option]')].map((one) => one.textContent).join('|')").split("|")
                self.assertEqual("My own" in entries, keeps)
                if keeps:
                    self.choose_in_list(entries.index("My own"))
                    self.assertEqual(self.color_of(RED_CELL), (12, 200, 99))
                    self.assertIsNotNone(desk.part("My own"))

    def choose_in_list(self, number):
        """By mouse, then the keyboard finds the list closed."""
        left, top, width, height = self.page.evaluate(
            f"(() => {{ const place = page.popup.ground.querySelectorAll('[role=option]')[{number}]"
            ".getBoundingClientRect(); return [place.left, place.top, place.width, place.height]; })()")
        self.desk.heard("listEntry", lambda: self.page.click(int(left + width / 2), int(top + height / 2)))
        self.desk.rest()
        self.desk.at = None
        self.assertFalse(self.page.evaluate("page.popup.isOpen"))

    def color_of(self, name):
        part = self.desk.part(name)
        scale = self.desk.scale()
        return self.desk.pixels("Form1", round((part["left"] + part["width"] / 2) * scale),
                                round((part["top"] + part["height"] / 2) * scale), 2, 2).at(0, 0)

    def test_leaving_the_page_with_work_asks(self):
        """By a navigation that the page itself begins, as by a link; the browser's own question, which
        Escape answers with to stay."""
        desk = self.desk
        desk.open_editor("Miniature")
        desk.choose("Mountain tool")
        desk.stroke((128, 128))
        before = self.page.picture().data[::SPARSE]

        def is_covered():
            now = self.page.picture().data[::SPARSE]
            return sum(a != b for a, b in zip(before, now)) > len(before) / 100
        self.page.evaluate("void setTimeout(() => { location.href = 'about:blank'; }, 0)")
        desk.wait(is_covered, "nobody asks")
        desk.wait_for_stillness()
        self.page.key("Escape")
        desk.wait(lambda: not is_covered(), "the question stays")
        desk.rest()
        self.assertTrue(desk.is_shown("Form1"))
        self.assertTrue(self.page.evaluate("page.hasWork"))
