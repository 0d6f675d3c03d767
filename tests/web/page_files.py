"""Files in and out of the page: the browser's own downloads, its own choice of a file."""
import page_case
import pictures

SIDE = 257
GREYS = [[(x + 3 * y) % 256 for x in range(SIDE)] for y in range(SIDE)]  # each of the 256, in every order
BLOCKS = [[8 * ((x // 16) + (y // 16)) % 256 for x in range(SIDE)] for y in range(SIDE)]


class Files(page_case.PageCase):
    def put(self, name, data):
        path = self.page.downloads / name
        path.write_bytes(data)
        return path

    def test_a_saved_map_comes_back_byte_for_byte(self):
        desk = self.desk
        desk.open_editor("Small")
        desk.choose("Mountain tool")
        desk.stroke((128, 128))
        saved = desk.save("kept.bmp")
        desk.stroke((60, 60))
        self.assertFalse(desk.save("other.bmp").read_bytes() == saved.read_bytes(), "it is the same")
        desk.open_file_by_dialog(saved)
        desk.rest()
        self.assertTrue(desk.save("again.bmp").read_bytes() == saved.read_bytes(), "it is another")

    def test_each_grey_of_a_png_is_a_height_whatever_it_says_of_colours(self):
        desk = self.desk
        desk.open_editor("Large")
        profile = b"g\0\0" + pictures.zlib.compress(pictures.gray_profile(1.0))
        for name, more in (("plain", []), ("gamma", [(b"gAMA", (100000).to_bytes(4, "big"))]),
                           ("srgb", [(b"sRGB", b"\0"), (b"gAMA", (45455).to_bytes(4, "big"))]),
                           ("profile", [(b"iCCP", profile)])):
            with self.subTest(png=name):
                desk.open_file(self.put(f"{name}.png", pictures.gray_png(SIDE, GREYS, *more)))
                desk.rest()
                found = pictures.heights(desk.save(f"{name}.bmp"))
                wrong = sum(list(row) != greys for row, greys in zip(found, GREYS))
                self.assertEqual((len(found), wrong), (SIDE, 0))

    def assert_heights(self, path, expected, most_off):
        """Of the map into which the picture is taken."""
        desk = self.desk
        desk.open_file(path)
        desk.rest()
        found = pictures.heights(desk.save(f"{path.stem}.bmp"))
        off = [abs(a - b) for one, other in zip(found, expected) for a, b in zip(one, other)]
        self.assertEqual(len(off), SIDE * SIDE)
        self.assertLessEqual(max(off), most_off)

    def test_a_jpeg_is_taken(self):
        self.desk.open_editor("Large")
        path = self.page.downloads / "blocks.jpg"
        pictures.jpeg(path, SIDE, BLOCKS)
        self.assert_heights(path, BLOCKS, 2)

    def test_greys_of_sixteen_bits_and_those_seen_through(self):
        self.desk.open_editor("Large")
        deep = [bytes(byte for grey in row for byte in (grey, grey)) for row in GREYS]
        self.assert_heights(self.put("deep.png", pictures.gray_png(SIDE, deep, bits=16)), GREYS, 0)
        pairs = [[(grey, (7 * x + y) % 256) for x, grey in enumerate(row)] for y, row in enumerate(GREYS)]
        clear = [bytes(byte for pair in row for byte in pair) for row in pairs]
        over_black = [[grey * alpha / 255 for grey, alpha in row] for row in pairs]
        self.assert_heights(self.put("clear.png", pictures.gray_png(SIDE, clear, has_alpha=True)), over_black, 1)

    def test_a_file_that_is_no_picture_is_refused_and_the_map_stays(self):
        desk = self.desk
        desk.open_editor("Small")
        desk.choose("Mountain tool")
        desk.stroke((128, 128))
        before = desk.save("before.bmp").read_bytes()
        for name, data in (("junk.png", b"\x89PNG\r\n\x1a\n" + bytes(range(256))), ("text.jpg", b"no picture"),
                           ("cut.bmp", before[:2000]), ("empty.png", b"")):
            with self.subTest(file=name):
                desk.open_file(self.put(name, data))
                said = desk.dialog("message")
                self.assertIn(f'"{name}"', said)  # without a folder, which would be the page's own
                self.assertIn("The map is unharmed", said)
                desk.answer_by_key("Return")
                desk.rest()
                self.assertTrue(desk.save("after.bmp").read_bytes() == before, "the map is another")

    def test_leaving_the_dialogs_changes_nothing(self):
        desk = self.desk
        desk.open_editor("Small")
        desk.choose("Menu")
        desk.press("Save")
        desk.dialog("save")
        desk.answer_by_key("Escape")
        desk.rest()
        desk.press("Import")
        desk.dialog("open")
        desk.wait_for_front(is_editor=False)
        self.page.key("Escape")
        desk.no_dialog()
        desk.wait_for_front(is_editor=True)
        desk.rest()
        self.assertEqual(self.page.evaluate("heard.answer"), 2)
        self.assertEqual(self.page.evaluate("heard.key || 0"), 0)
