// The words of the help window. Odd spellings are the program's own.
#pragma once

#include "platform/skin_pictures.h"

namespace ombrelia {

// A page with a heading, a text below it unless that is empty, and a picture.
struct HelpPage {
    int number;
    const char* title;
    const char* text;
    Picture picture = Picture::None;  // of what a short page speaks of
};

inline constexpr HelpPage kHelpPages[] = {
    {1, "Contents",
     "Welcome to the Ombrelia Terrain Editor's Help System. To begin, select a "
     "topic on the left."},
    {2, "Starting Out", "", Picture::HelpStarting},
    {3, "Simple", "", Picture::HelpNewMap},
    {4, "Icons", "Please Select an Icon from the list:"},
    {5, "Advanced", "", Picture::HelpOptions},
    {6, "Advanced Terrain Editing", "", Picture::HelpAdvanced},
    {200, "Step 1",
     "Creating a simple terrain is easy. Lets say we want to create a few "
     "mountains, and then a canyon running through them. First, pick the Mountain "
     "tool. Set the TOP SIZE to 30. Leave the other settings the way they are. Now "
     "click in the centre of the map, then once more above the mountain you just "
     "made, then once more below. You just made 3 mountains! Now, lets get to the "
     "canyon. Choose the Canyon tool. Set the edge steepness to the rightmost "
     "button. Now click && drag the canyon from the left side of the mountains to "
     "the right. There's your canyon!"},
    {201, "Step 2",
     "Now you are ready to view your map in 3D mode. Click the 3D Mode button. "
     "Click && Drag on the map to rotate around the map. Now set the 'Resolution' "
     "slider to 2, and hit Draw 3D. Thats what your map looks like in 3D. If you "
     "like, you can choose one of the other 3D Motion tools, and look at the map "
     "differently. "},
    {202, "Step 3",
     "It's time to save the map to a file. Click the MENU button, and then click "
     "SAVE. Type in a filename, and hit Save. The map has been saved at that "
     "location.",
     Picture::HelpSave},
    {300, "Importing to Ombrelia",
     "Importing into Ombrelia can be hard, and there is'nt an easier way to do it. "
     "When you save your map, save it to a simple location, like C:\\Terrains. "
     "Remember the filename. Open Ombrelia, and create a new game with a size of "
     "the same size you chose for your terrain. Once the game has loaded, do not "
     "build anything. Press CTRL-ALT-SHIFT-C all at once, and a little dialog box "
     "will appear in the corner. In it, type 'load terrain x', where x the path to "
     "your file. Example: 'load terrain c:\\terrains\\terr1.bmp'. Now, push enter. "
     "Your terrain should appear! If it does't, it is probably because you made a "
     "spelling error, and Ombrelia couldn't find the file."},
    {301, "Starting a New Map",
     "This is very simple. Click the Menu button at the top, and then click New "
     "Map. Thats it!",
     Picture::HelpNewMap},
    {500, "Changing the Color Palatte",
     "If you really hate that rather ugly Brown-Green thing, there are several new "
     "color pallates in the program. Click the options button at the top of the "
     "screen, and then use the scrollbar to scroll all the way to the bottom. From "
     "the drop-down list, choose one of the custom pallate's. I chose 'Earth'. If "
     "you are in 2D mode, you will see that the map has stayed the same. You must "
     "first re-draw the map. This is done by simply clicking the Checkmark Button, "
     "in the bottom-right corner. Now you have a new color pallate! If you wish, "
     "you can also create your own pallates. Choose one of the color boxes shown, "
     "and then choose a new color. When you are finished, click the Add Color "
     "button, and the color is saved. To delete a color, select it in the list and "
     "choose Delete Color. If you delete a color by accident, it is still loaded as "
     "the current color. You simply have to click Add Color again and save it with "
     "a new name."},
    {501, "Changing the Options",
     "This section will be updated in the next version, as we are still adding new "
     "options. In the meantime, simply read the tool-tip pop ups.",
     Picture::HelpOptions},
    {600, "Fractal Terrain",
     "The Fractal Terrain Tool is one of the best parts of the program. It creates "
     "random terrain, based on fractals, which provide an excellent starting base "
     "for your map. Change all three sliders to values you choose, and then hit "
     "Generate. Since the terrain is random, you will have to play around with the "
     "settings to see what they do. They can give you anything from a beatiful "
     "shoreline to a nice, open plain to a mountain range. Its a great tool!"},
    {601, "Importing a Bitmap",
     "First, click Menu, then Import. Select a BMP file of your choice. Note: The "
     "program will also accept JPG, GIF, ICO, WMF, and RLE file formats, but it is "
     "not garanteed that these will work. The program will load the image and "
     "choose the most fitting map size. Here's how the sizing works: If you choose "
     "a picture that is 400 pixels wide, but only 65 pixels high, then the import "
     "procedure will choose 65x65 (Miniature) as the map size. The width will be "
     "shrunken to 65. If you choose a picture which is smaller than 65x65, the "
     "image is placed in the top corner, and blank terrain is left behind."},
};

// A line of a page that leads to another one.
struct HelpLink {
    int page;
    int target;
    const char* text;
};

inline constexpr HelpLink kHelpLinks[] = {
    {2, 200, "Step 1: Create a Simple Terrain"},
    {2, 201, "Step 2: View in 3D"},
    {2, 202, "Step 3: Save to a file"},
    {3, 301, "Creating a New Map"},
    {3, 300, "Importing into Ombrelia"},
    {5, 500, "Changing the Color Palatte"},
    {5, 501, "Changing the Options"},
    {6, 600, "Fractal Terrain"},
    {6, 601, "Importing a Bitmap"},
    {200, 201, "Proceed to Step 2"},
    {201, 202, "Proceed to Step 3"},
    {202, 300, "Now see IMPORTING INTO OMBRELIA"},
};

// Entry i of the contents leads to page i + 2.
inline constexpr const char* kContentsEntries[] = {
    "Starting Out - New to the Terrain Editor? Here's a crash course.",
    "Simple - How to do easy things in the editor.",
    "Icons - Descriptions of every icon you see in the program.",
    "Advanced - How to use more advanced features of the program.",
    "Advanced Terrain Editing - More advanced editing features",
    "About - Learn about who made the editor",
};

// The pages of the tools, in the order of the tools' numbers.
inline constexpr HelpPage kToolPages[] = {
    {400, "Pencil Tool",
     "The pencil tool allows simple drawing. You can use the color picker to choose "
     "the draw height, and then set the draw thickness. Now click && drag on the "
     "map, and your drawing will appear. When you release the mouse button, the "
     "program will calculate your drawing."},
    {401, "Line Tool",
     "The line tool allows simple drawing of straight lines. You can use the color "
     "picker to choose the draw height, and then set the draw thickness. Now click "
     "&& drag on the map, and your drawings will appear. When you release the mouse "
     "button, the program will calculate your line."},
    {402, "Raise Terrain Tool",
     "The raise terrain tool will raise the height of the terrain by the set "
     "amount. Click && hold the mouse button, while moving the mouse around. The "
     "terrain under your mouse cursor raises."},
    {403, "Lower Terrain Tool",
     "The lower terrain tool will lower the height of the terrain by the set "
     "amount. Click && hold the mouse button, while moving the mouse around. The "
     "terrain under your mouse cursor lowers."},
    {404, "Fractal Terrain",
     "The fractal terrain tool will generate a random terrain, for you to build on. "
     "This tool will erase the entire map. The smoothness of the terrain determines "
     "how smooth the terrain is. A value of 20 will generate almost a flatland, and "
     "a value of 1 will generate mountains and valleys. The height slider sets the "
     "GENERAL height of the terrain. The actual height changes, depending on the "
     "smoothness. When you are finished with the settings, click Generate, and the "
     "fractal appears."},
    {405, "2D Mode",
     "The 2D mode button will do two things: It will make the Refresh 3D button "
     "visible, and it will show the tools, objects, color picker, and zoom window. "
     "The Refresh 2D button will refresh the 2D map view. The tools section allows "
     "you to choose an editing tool. The Objects section allows you to create an "
     "object. The Color Palette allows you to pick a color for use with the Line "
     "and Pencil tool. The Zoom window shows a zoomed up view of the area under "
     "your mouse pointer."},
    {406, "3D Mode",
     "The 3D mode button will do two things: It will make the 3 3D Motion buttons "
     "visible. The first one allows you to revolve around your map. The second one "
     "allows you to pan the map around the screen. The third one allows you to zoom "
     "in && out of your map. The second thing the 3D mode button will do is show "
     "the 3D Mode Properties Pallate. Here, you can set the following options for "
     "the 3D draw. Resolution: The quality of the 3D render. The higher the number, "
     "the faster the draw, but the uglier the quality. Draw Width: Set the size of "
     "the lines/dots drawn. Draw Mode: Set between lines and dots. Lines provides "
     "the best look, but takes longer than dots. When you are finished setting "
     "options, click Draw 3D and the 3D map will appear. NOTE: In this version, it "
     "is not yet possible to edit your map in 3D mode."},
    {407, "Color Picker Tool",
     "The color picker will make your currently selected color be the color of the "
     "point where you clicked your mouse on the map. This is useful for making a "
     "line with a certain height."},
    {408, "Mountain Object",
     "The mountain object will generate a mountain at your clickpoint. Simply set "
     "the following options. Height: The height of the very centre of the mountain. "
     "Steepness: The downward grade of the sides of the mountains. Top Size: The "
     "radius of the top, which is at the height set by Height. To create a place "
     "where roads can easily be built, make the Top Size 30. Only Change Lower "
     "Height: When checked, a mountain will only change a height below it. For "
     "example, a mountain with height of 30 will not change an exisiting mountain "
     "with height 240 when you click in the middle. When you are through setting "
     "options, click somewhere on the map, at the place where to mountain should be."},
    {409, "Canyon Object",
     "The canyon tool will create a canyon along a line you define. The options you "
     "can set are: Steepness: Set the edge steepness of the canyon walls. River: "
     "Does a river flow through the middle? Larger Bank: Sets a larger river bank "
     "surrounding the river. If you choose not to have a river, than a larger bank "
     "is created, but with no river inside. When done, click && drag a path for "
     "your canyon to follow. Thats it!"},
    {410, "Plain Object",
     "The plain tool is useful for creating a place for you to build roads. The "
     "plain it creates is all of an even height. You can set the radius of the "
     "plain. When ready, click on the map, and a plain is created with a height of "
     "the clickpoint. For example, if you click at the top of a mountain with a "
     "height of 2000m, a round circle is created with a height of 2000m."},
};

inline constexpr const char* kAboutTitle = "About Quillbyte";

// The lines of the About page; an empty one stands between paragraphs.
inline constexpr const char* kAboutLines[] = {
    "The Ombrelia Terrain Editor was written by Quillbyte, a small workshop of map makers, so that "
    "every player of Ombrelia can build a city on land of their own.",
    "",
    "All of it was done in spare time, after work and on rainy weekends. If you enjoy the editor "
    "and would like to see more of it, a donation of any size would make our day.",
    "",
    "Donations can be sent to:",
    "",
    "Quillbyte Workshop",
    "The Old Survey Office",
    "1 Contour Lane",
    "Ridgeby-under-Hill",
    "Ombrelia",
    "",
    "Everyone who sends something will be listed on this page in the next version, unless you ask "
    "us to keep it to ourselves.",
    "",
    "About Quillbyte:",
    "",
    "Quillbyte is the finest team that ever raised a mountain in an afternoon: patient with "
    "shorelines, generous with rivers, and never afraid of a canyon.",
    "",
    "Visit us at https://quillbyte.invalid/",
    "",
    "Official Non-Quillbyte Page:",
    "",
    "https://ombrelia-maps.invalid/",
};

}  // namespace ombrelia
