// A second copy of every sentence of the hint frame, one row a number.
#pragma once

namespace ombrelia {

struct SecondCopy {
    int number;
    const char* text;
};

inline constexpr SecondCopy kSecondButtonHints[] = {
    {0,
     "This is the Pencil tool. You can set the width of your pencil in the properties "
     "box, and set your color with the color picker. Then click && drag on the map to "
     "draw."},
    {1,
     "This is the Line tool. You can set the width of the line in the properties box, "
     "and set your color with the color picker. Then click && drag on the map to draw "
     "a line."},
    {2,
     "This is the Raise Terrain tool. Click && drag on the map to raise the level of "
     "the terrain at the click point. To raise it higher, keep holding the mouse "
     "button and move it around."},
    {3,
     "This is the Lower Terrain tool. Click && drag on the map to lower the level of "
     "the terrain at the click point. To lower it more, keep holding the mouse button "
     "and move it around."},
    {4,
     "This is the Fractal Terrain tool. It will create random terrain, with a set "
     "height and roughness. WARNING: It fills the entire map, erasing all of your "
     "current work."},
    {5,
     "This is the 2D Mode button. Click it, and your viewport will switch to the 2D "
     "view of your map. You also have the option of redrawing the map."},
    {6,
     "This is the 3D Mode button. Click it, and you can see a 3D representation of "
     "your map. Choose a tool from above, and click && drag on the map to move around "
     "the 3D map. When you wish to see it in better quality, click DRAW 3D"},
    {7,
     "This is the Color Picker tool. When you click on the map, it will select the "
     "color of that point for you."},
    {8,
     "This is the mountain tool. It will generate a mountain with a set height, "
     "steepness, and top size."},
    {9,
     "This is the canyon tool. It will create a canyon on your map, which is a path "
     "carved by a river over millions of years. You can choose the steepness of the "
     "edges, aswell as whether or not a river is in the middle. Click && drag on the "
     "map to create one."},
    {10,
     "This is the plain tool. It will create a circle with a pre-defined radius based "
     "on the height of the clickpoint. Useful for making areas in your map where "
     "cities can be built."},
    {11, "This is the close button. Click it to quit the program."},
    {12,
     "When clicked, this button will re-draw the 2-dimensional viewport. Use if the "
     "graphics are not correct."},
    {13,
     "This button will open an existing BMP file and import it into the terrain "
     "editor, for editing and then saving. Imagine: A picture of you with a city on "
     "it!"},
    {14, "This button will save your current map, for importation into Ombrelia(tm)."},
    {15, "Click here to create a new map."},
    {16, "Click here to set various options of the program."},
    {17, "Click here to quit the program."},
    {18, "Click here to get a pop-down menu of choices like Save and Import."},
    {19,
     "Click here to draw a higher-quality 3D version of your map, with the settings "
     "you specified."},
    {20, "Click here to generate the fractal terrain, with the settings you have chosen."},
    {21, "Click here to learn more about Quillbyte"},
    {22, "When showing a red light, click here to stop the current operation."},
    {23, "Click here for Help!"},
    {24,
     "When clicked, this button will completely redraw your mapview with the new "
     "color set you have selected."},
    {25, "When clicked, this button will minimize the editor."},
    {26,
     "When clicked, this button will add a new color set, based on the one you have "
     "loaded now."},
    {27, "When clicked, this button will delete the currently selected color set."},
    {28, "When chosen, this option will draw the 3D Map in Line Mode."},
    {29, "When chosen, this option will draw the 3D Map in Dot Mode."},
    {38, "When chosen, this option will draw the 3D Map in Polygon Mode."},
    {30, "Sets the steepness of the edges to Vertical."},
    {34, "Sets the steepness of the edges to Vertical."},
    {31, "Sets the steepness of the edges to Very Steep"},
    {35, "Sets the steepness of the edges to Very Steep"},
    {32, "Sets the steepness of the edges to Slighly Steep"},
    {36, "Sets the steepness of the edges to Slighly Steep"},
    {33, "Sets the steepness of the edges to Smooth"},
    {37, "Sets the steepness of the edges to Smooth"},
    {40, "Click here, and then click && drag on the map to rotate around your 3D map."},
    {41, "Click here, and then click && drag on the map to pan it up&&down, left&&right."},
    {42, "Click here, and then click && drag on the map to zoom in and out."},
    {43,
     "Click here to pan the map around the screen. Right-Click to select the zoom "
     "tool above."},
    {44,
     "Click here to zoom the map in and out. Right-Click on the map to select the pan "
     "tool below."},
    {50,
     "This tool will be available in a future version. It will generate wavy terrain, "
     "kind of like an egg carton."},
    {51,
     "This tool will be available in a future version. It will generate mountain "
     "ranges. Get your skiing gear, rockies here we come!"},
    {52,
     "This tool will be available in a future version. It will generate a river "
     "following a basic path, and create random widths, twists, and turns. Just like "
     "a real river!"},
    {53,
     "This tool will be available in a future version. It will generate a volcano "
     "(sorry no lava). Wouldn't you like to live next to Mount St. Helens?"},
    {60,
     "When checked, this option will create a river flowing through the center of "
     "your canyon."},
    {61,
     "When checked, this option will make the mountain only change height values that "
     "are LESS than the new ones. For more info, see Help."},
    {62,
     "When checked, this option will enable the custom cursors that come with the "
     "program."},
    {63, "This will choose color cursors."},
    {64, "This will choose Black and White cursors."},
    {65,
     "When checked, this option will enable the button sounds that are heard when a "
     "button is clicked."},
    {66,
     "When checked, this option will make the editor refresh the map after every "
     "event, ie. making a mountain."},
    {67,
     "When checked, this option will make the editor refresh the map view in 'steps', "
     "ie. from low res to high res."},
    {68, "This will enable drawing of the 20 to 1 view."},
    {69, "This will enable drawing of the 10 to 1 view."},
    {70, "This will enable drawing of the 5 to 1 view."},
    {71, "This will enable drawing of the 2 to 1 view."},
    {72, "This will enable drawing of the full view."},
    {73,
     "When checked, this option will show the help box from which you are reading "
     "these words."},
    {74,
     "When checked, this option will cause the 3D navigation to enter advanced mode. "
     "Single-Clicking on the grid activates the rotate tool. Double-Clicking "
     "activates the pan tool, and Right-Clicking activates the zoom tool."},
};

inline constexpr SecondCopy kSecondSliderHints[] = {
    {1, "Here you can set the width of the pencil drawing."},
    {2, "Here you can set the width of the line drawing."},
    {3, "Here you can set the amount that the terrain gets raised, at the clickpoint."},
    {4,
     "Here you can set the resolution of your 3D drawing. The higher the number, the "
     "faster the 3D draw, but the quality gets worse."},
    {5, "Here you can set the size and width of the lines or dots, when drawing 3D."},
    {6, "Here you can set the height of the mountain to make."},
    {7, "Here you can set the top size of the mountain."},
    {8,
     "Here you can set the size of the plain to create. Keep in mind that this plain "
     "is circular."},
    {9,
     "Here you can set the smoothness of the fractal terrain. A setting of 1 makes "
     "almost static, and a setting of 20 makes almost 1 color."},
    {10,
     "Here you can set the general height of the fractal. Keep in mind that the "
     "fractal moves up&down, so this is just the average height value."},
    {11, "Here you can set the amount that the terrain gets lowered, at the clickpoint."},
    {12,
     "Here you can set the width of the river that is generated, if you choose to "
     "have one."},
    {13,
     "Here you can set the width of the river bank, which is generated regardless of "
     "whether or not a river is present."},
    {14,
     "Here you can set the detail level of the fractal. Use 1 to make a very simple "
     "terrain, or use 8 to make a very complex one."},
};

}  // namespace ombrelia
