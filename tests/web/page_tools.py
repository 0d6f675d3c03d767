"""Each tool and each view by mouse, beside the same done by the headless tool."""
import page_case


class Tools(page_case.PageCase):
    def draw_with_all(self):
        """What depends on no chance, on a flat map."""
        desk = self.desk
        desk.click("Form1", 289, 180)  # a height of the picker strip
        desk.choose("Pencil tool")
        desk.slide("Thickness:", 30)
        desk.stroke((40, 40), (90, 60), (140, 30), (200, 200))
        desk.choose("Line tool")
        desk.stroke((20, 230), (120, 240), (230, 150))
        desk.choose("Raise Terrain tool")
        desk.stroke((60, 100), (64, 104), (70, 100), (75, 110))
        desk.choose("Lower Terrain tool")
        desk.stroke((160, 100), (164, 104), (170, 100), (175, 110))
        desk.choose("Color Picker tool")
        desk.stroke((64, 104))
        desk.choose("Mountain tool")
        desk.choose("Very Steep")
        desk.stroke((128, 128))
        desk.choose("Smooth")
        desk.stroke((60, 200), (61, 201))
        desk.choose("Canyon tool")
        desk.choose("Slightly Steep")
        desk.stroke((30, 60), (40, 120), (90, 160), (150, 240))
        desk.choose("Plain tool")
        desk.stroke((200, 60), (230, 80), (220, 120))

    def test_each_tool_shapes_the_map_as_on_the_desktop(self):
        desk = self.desk
        desk.open_editor("Small")
        self.draw_with_all()
        self.assert_same_surfaces("MapView", "Picker", "ZoomView")
        file = desk.save("tools.bmp")
        self.assertGreater(len(set(file.read_bytes()[1078:])), 60)
        self.assert_same_file(file, "tools.bmp", desk.lines)

    def test_a_finger_does_what_the_mouse_does(self):
        desk = self.desk
        desk.open_editor("Small")
        desk.touch("Form1", desk.middle("Line tool"))
        desk.touch("Form1", desk.on_map(20, 30), desk.on_map(200, 210))
        desk.touch("Form1", desk.middle("Mountain tool"))
        desk.touch("Form1", desk.on_map(128, 100))
        self.assert_same_file(desk.save("finger.bmp"), "finger.bmp", desk.lines)

    def test_pan_and_zoom_show_the_same(self):
        desk = self.desk
        desk.open_editor("Miniature")
        desk.choose("Mountain tool")
        desk.stroke((128, 128))
        desk.choose("Zoom the map")
        desk.stroke((100, 100), (130, 100), (150, 100))
        desk.choose("Pan the map")
        desk.stroke((100, 100), (120, 130))
        self.assert_same_surfaces("MapView", "ZoomView")

    def test_perspective_in_three_styles_shows_the_same(self):
        desk = self.desk
        desk.open_editor("Miniature")
        desk.choose("Mountain tool")
        desk.stroke((128, 128))
        desk.stroke((60, 60))
        desk.choose("3D Mode")
        self.assert_same_surfaces("MapView")
        for style in ("Line Mode", "Dot Mode", "Polygon Mode"):
            with self.subTest(style=style):
                desk.choose(style)
                desk.choose("Draw 3D")
                self.assert_same_surfaces("MapView")
        desk.choose("Rotate the 3D map")
        desk.stroke((100, 100), (130, 110), (140, 120))
        self.assert_same_surfaces("MapView")

    def test_the_wheel_turns_the_option_strip(self):
        desk = self.desk
        desk.open_editor("Miniature")
        before = desk.part("Option strip")["value"]
        desk.move("Form1", 620, 250)
        desk.turn_wheel()
        below = desk.part("Option strip")["value"]
        self.assertGreater(float(below), float(before))
        desk.turn_wheel(button=4)
        self.assertEqual(desk.part("Option strip")["value"], before)
