// What the page does for the program: its side stands in page/library.js. Places are device pixels,
// texts UTF-8; a window is known by its number.
#pragma once

extern "C" {

// The one call that lets the page live: returns when the page has an event for the program, or
// after so many milliseconds. Below 0: as long as it takes.
void page_wait(double milliseconds);

// Takes the page's next event: its kind (PageEventKind) and up to six numbers; 0 if there is none.
int page_take_event(double* numbers);

// The text of the event that was taken last; to be freed.
char* page_event_text();

double page_milliseconds();

// Free room in device pixels, and device pixels to one of the page's own.
int page_width();
int page_height();
double page_ratio();

int page_is_active();  // this page has the keyboard
void page_set_busy(int isBusy);
void page_set_has_work(int hasWork);
void page_ended();

// Windows.
// frame: 0 none, 1 of a fixed size, 2 to be sized by hand.
void page_open_window(int window, int frame, const char* title);
void page_close_window(int window);
void page_set_title(int window, const char* title);
void page_place_window(int window, int left, int top, int width, int height, double scale);
void page_show_window(int window, int isShown);
void page_raise_window(int window);
void page_set_cursor(int window, int picture, int face, int width, int height);
void page_minimize_window(int window);

// Painting on a window.
void page_begin(int window, int left, int top, int right, int bottom, double opacity);
void page_fill(int left, int top, int right, int bottom, unsigned color);
void page_draw_face(int picture, int face, int left, int top, int width, int height);
void page_draw_pixels(const unsigned* pixels, int columns, int rows, int left, int top, int width,
                      int height);
void page_draw_text(const char* text, double size, double pitch, unsigned color, int align,
                    int style, int left, int top, int width, int height);
void page_draw_line(int x1, int y1, int x2, int y2, int width, unsigned color);
void page_draw_triangle(double x1, double y1, double x2, double y2, double x3, double y3,
                        unsigned color);

// What stands in a frame: a menu or one of its entries (menu: its number, or -1), a scroll bar.
void page_set_menu_item(int window, int item, int menu, const char* caption, int isEnabled,
                        int isChecked);
void page_set_scroll_bar(int window, int item, int left, int top, int width, int height, int least,
                         int most, int step, int value, const char* name);

// Opens a list of entries, a line each, over a field; its height. Where it is to stand comes after.
int page_open_list(int window, int item, const char* entries, int chosen, int left, int top,
                   int width, int height);

void page_place_list(int window, int top);

// What assistive technology finds in a window. kind: AccessKind; flags: 1 on, 2 disabled, 4 hidden,
// 8 can be pressed.
void page_tell_part(int window, int item, int kind, const char* name, const char* value, int flags,
                    int left, int top, int width, int height, double least, double most);

// Opens a dialog; its answer comes as an event. Returns its number.
int page_open_dialog(const char* kind, const char* title, const char* text, int style,
                     unsigned color);

// Files and settings.
void page_save_as_download(const char* path);
void page_load_settings(const char* path);
int page_keep_settings(const char* path);  // 1 if they are kept

// Pictures: the answer comes as an event.
void page_decode_picture(const char* path);
void page_take_picture_row(int y, int width, unsigned* pixels);
void page_drop_picture();

void page_play_sound(const char* name);
void page_open_web_page(const char* address);
}

namespace ombrelia {

enum class PageEventKind {
    None,
    Pointer,    // window, PointerKind, x, y, button, notches
    Key,        // of the active window: nothing, virtual key code
    Close,      // window
    Resize,     // the page has another size
    Activate,   // the page got or lost the keyboard; a window came to the front
    MenuItem,   // window, item
    Scroll,     // window, item, value, whether it is being dragged
    FrameSize,  // window, width, height
    ListEntry,  // window, item, entry
    PressPart,  // window, item
    SetPart,    // window, item, value
    Answer,     // dialog, whether it was accepted, a number; text
    Picture,    // width, height; 0: it cannot be read
    Restore,    // window
    MoveFrame,  // window, left, top
};

}  // namespace ombrelia
