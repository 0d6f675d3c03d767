"""The page at the size and the ratio of pixels at which the browser was started."""
import random

import page_case

SIDE = 64


class Sizes(page_case.PageCase):
    def assert_inside(self):
        """Every window that is seen lies whole on the page."""
        room = self.page.evaluate("[page.width(), page.height()]")
        self.assertEqual(room, [self.page.hands.width, self.page.hands.height])
        for left, top, right, bottom in self.page.evaluate("""seenWindows().map((one) => {
                const place = one.root.getBoundingClientRect(), ratio = page.ratio();
                return [place.left, place.top, place.right, place.bottom].map((side) => side * ratio); })"""):
            self.assertGreaterEqual(min(left, top), -0.1)
            self.assertLessEqual(right, room[0] + 0.1)
            self.assertLessEqual(bottom, room[1] + 0.1)

    def test_all_lies_inside_and_each_pixel_is_one_of_the_screen(self):
        desk = self.desk
        desk.open()
        self.assert_inside()
        desk.click("frmSplash", 100, 100)
        desk.until(desk.window("SizeSelect"))
        self.assert_inside()
        desk.press("Miniature", "SizeSelect")
        desk.until("windowOf(771)")
        desk.rest()
        self.assert_inside()
        with self.subTest("the map is seen whole and right"):
            desk.choose("Mountain tool")
            desk.stroke((128, 128))
            self.assert_same_surfaces("MapView", "Picker")
        with self.subTest("a pattern comes pixel by pixel"):
            chance = random.Random(5)
            bits = [chance.getrandbits(1) for _ in range(SIDE * SIDE)]
            self.page.evaluate(f"""void (() => {{
                const picture = new ImageData({SIDE}, {SIDE}), bits = {bits};
                bits.forEach((bit, n) => picture.data.set(bit ? [255, 255, 255, 255] : [0, 0, 0, 255], 4 * n));
                windowOf(771).context.putImageData(picture, 30, 100);
            }})()""")
            pattern = b"".join(b"\xff\xff\xff" if bit else bytes(3) for bit in bits)
            desk.wait(lambda: desk.pixels("Form1", 30, 100, SIDE, SIDE).data == pattern,
                      "the screen shows another pattern")
        with self.subTest("the help lies inside too"):
            desk.choose("Help")
            self.assert_inside()
