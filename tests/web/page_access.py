"""What assistive technology finds in the page, and that it can press it."""
import sys

import page_case
from desk import ROOT

sys.path.insert(0, str(ROOT / "tests/accessibility"))
import parts_table  # noqa: E402

ROLES = {"button": ("BUTTON", None), "radio button": ("BUTTON", "radio"), "check box": ("BUTTON", "checkbox"),
         "slider": ("INPUT", None), "label": ("SPAN", None)}
FIND = """[...windowOf(771).parts.values()].map((part) => part.element).map((node) =>
    [nameOf(node), node.tagName, node.getAttribute('role')])"""
BUTTON = ("[...windowOf(771).parts.values()].map((part) => part.element)"
          ".find((node) => nameOf(node) === '%s' && node.tagName === 'BUTTON')")


class Access(page_case.PageCase):
    def setUp(self):
        super().setUp()
        self.desk.open_editor("Small")

    def press(self, name):
        """Without the mouse, as assistive technology does."""
        self.page.evaluate(f"void {BUTTON % name}.click()")
        self.desk.rest()

    def state(self, name):
        return self.page.evaluate(f"{BUTTON % name}.getAttribute('aria-checked')")

    def test_each_part_has_its_name_and_role(self):
        found = {tuple(one) for one in self.page.evaluate(FIND)}
        for role, names in parts_table.NAMES.items():
            for name in names:
                with self.subTest(role=role, name=name):
                    self.assertIn((name, *ROLES[role]), found)
        self.assertIn(("Map", "DIV", "img"), found)
        self.assertIn(("Current Colors", "BUTTON", "combobox"), found)
        self.assertEqual([one for one in found if one[0] == ""], [])

    def test_states_follow_what_is_pressed(self):
        self.assertEqual(self.state("2D Mode"), "true")
        self.assertEqual(self.state("3D Mode"), "false")
        self.press("Pencil tool")
        self.assertEqual(self.state("Pencil tool"), "true")
        before = self.state("River in the middle")
        self.press("River in the middle")
        self.assertEqual({before, self.state("River in the middle")}, {"true", "false"})

    def test_a_slider_is_set(self):
        self.desk.choose("Fractal Terrain tool")
        self.desk.set_slider("Detail", 7)
        self.assertIn("Detail 7", {one[0] for one in self.page.evaluate(FIND)})

    def test_a_landscape_is_generated_without_the_mouse(self):
        before = self.desk.pixels("Form1", 16, 176, 514, 514).data
        self.press("Fractal Terrain tool")
        self.press("Generate")
        self.assertFalse(self.desk.pixels("Form1", 16, 176, 514, 514).data == before, "the map looks as before")

    def test_tab_and_space_press_what_has_the_keyboard(self):
        for _ in range(60):
            self.page.key("Tab")
            self.page.evaluate("painted()")
            if self.page.evaluate("document.activeElement.getAttribute('aria-label') === '3D Mode'"):
                break
        self.desk.heard("pressPart", lambda: self.page.key("space"))
        self.desk.rest()
        self.assertEqual(self.state("3D Mode"), "true")

    def test_parts_lie_where_they_are_seen(self):
        places = self.page.evaluate("""[...windowOf(771).parts.values()].map((part) => part.element)
            .filter((node) => !node.hidden).map((node) => { const one = node.getBoundingClientRect();
                return [nameOf(node), one.left, one.top, one.right, one.bottom]; })""")
        size = self.desk.size("Form1")
        for name, left, top, right, bottom in places:
            with self.subTest(part=name):
                ratio = self.page.ratio
                self.assertGreaterEqual(left * ratio, size["left"] - 1)
                self.assertGreaterEqual(top * ratio, size["top"] - 1)
                self.assertLessEqual(right * ratio, size["left"] + size["width"] + 1)
                self.assertLessEqual(bottom * ratio, size["top"] + size["height"] + 1)
                self.assertTrue(left < right and top < bottom)
