"""The main road: from the splash to a saved map."""
import page_case


class Story(page_case.PageCase):
    def test_a_landscape_is_generated_and_saved(self):
        desk = self.desk
        desk.open_editor("Large")
        desk.choose("Fractal Terrain tool")
        before = desk.pixels("Form1", 16, 176, 514, 514).data
        desk.choose("Generate")
        self.assertFalse(desk.pixels("Form1", 16, 176, 514, 514).data == before, "the map looks as before")
        file = desk.save("my terrain.bmp")
        self.assertEqual(file.name, "my terrain.bmp")
        self.assertEqual(len(file.read_bytes()), 67898)

    def test_a_map_drawn_by_hand_is_saved_as_on_the_desktop(self):
        desk = self.desk
        desk.open_editor("Large")
        desk.click("Form1", *desk.middle("Color picker"))
        desk.choose("Pencil tool")
        desk.stroke((40, 40), (90, 60), (140, 30), (200, 200))
        desk.choose("Mountain tool")
        desk.stroke((128, 128))
        desk.stroke((60, 200), (61, 201))
        file = desk.save("drawn.bmp")
        self.assert_same_file(file, "drawn.bmp", desk.lines + ["expect Random.Draws 0"])
