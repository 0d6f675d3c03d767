"""What assistive technology finds in the editor on every platform, by role."""
NAMES = {
    "button": [
        "Menu", "Options", "Import", "Save", "New Map", "Exit", "About", "Generate", "Update 2D",
        "Draw 3D", "Minimize", "Close", "Add Color", "Delete Color", "Stop", "Help"],
    "radio button": [
        "Pencil tool", "Line tool", "Raise Terrain tool", "Lower Terrain tool", "Fractal Terrain tool",
        "Color Picker tool", "Mountain tool", "Canyon tool", "Plain tool", "2D Mode", "3D Mode",
        "Pan the map", "Zoom the map", "Rotate the 3D map", "Pan the 3D map", "Zoom the 3D map",
        "Line Mode", "Dot Mode", "Polygon Mode", "Vertical", "Very Steep", "Slightly Steep", "Smooth",
        "Color", "Black & White"],
    "check box": [
        "Only change lower heights", "River in the middle", "Use Step Res", "20:1", "10:1", "5:1", "2:1",
        "1:1", "Automatically refresh after event", "Use Cursors", "Use Button Sounds", "Show HelpBox",
        "Advanced 3D Editing mode"],
    "slider": [
        "Thickness:", "Amount", "Resolution", "Draw Width", "Height", "Top Size", "Size", "Smoothness",
        "River Width", "Bank Width", "Detail", "Option strip"],
    # Where the sliders stand at first.
    "label": [
        "Thickness: 1", "Amount 130m", "Resolution 4", "Draw Width 1", "Height 2912m", "Top Size 1",
        "Size 5", "Smoothness 1", "Height 377m", "Amount 52m", "River Width 3", "Bank Width 10",
        "Detail 5"],
}
