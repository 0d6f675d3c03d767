// The program's calls of page.h, handed on to the page's own objects.
mergeInto(LibraryManager.library, {
    page_wait: function (milliseconds) {
        Asyncify.handleSleep((wakeUp) => page.events.wait(milliseconds, wakeUp));
    },
    page_take_event: function (numbers) {
        const event = page.events.take();
        if (event === null) {
            return 0;
        }
        for (let i = 0; i < 6; ++i) {
            HEAPF64[(numbers >> 3) + i] = Number(event.numbers[i] || 0);
        }
        return event.kind;
    },
    page_event_text__deps: ['malloc'],
    page_event_text: function () {
        const text = page.events.text;
        const size = lengthBytesUTF8(text) + 1;
        const bytes = _malloc(size);
        stringToUTF8(text, bytes, size);
        return bytes;
    },
    page_milliseconds: function () {
        return performance.now();
    },
    page_width: function () {
        return page.width();
    },
    page_height: function () {
        return page.height();
    },
    page_ratio: function () {
        return page.ratio();
    },
    page_is_active: function () {
        return (document.hasFocus() ? 1 : 0);
    },
    page_set_busy: function (isBusy) {
        return page.setBusy(isBusy !== 0);
    },
    page_set_has_work: function (hasWork) {
        return page.setHasWork(hasWork !== 0);
    },
    page_ended: function () {
        return page.end();
    },

    page_open_window: function (window, frame, title) {
        return page.openWindow(window, frame, UTF8ToString(title));
    },
    page_close_window: function (window) {
        return page.closeWindow(window);
    },
    page_set_title: function (window, title) {
        return page.window(window).setTitle(UTF8ToString(title));
    },
    page_place_window: function (window, left, top, width, height, scale) {
        return page.window(window).place(left, top, width, height, scale);
    },
    page_show_window: function (window, isShown) {
        return page.window(window).show(isShown !== 0);
    },
    page_raise_window: function (window) {
        return page.window(window).raise();
    },
    page_set_cursor: function (window, picture, face, width, height) {
        return page.window(window).setCursor(picture, face, width, height);
    },
    page_minimize_window: function (window) {
        return page.window(window).minimize();
    },

    page_begin: function (window, left, top, right, bottom, opacity) {
        return page.brush.begin(page.window(window), left, top, right, bottom, opacity);
    },
    page_fill: function (left, top, right, bottom, color) {
        return page.brush.fill(left, top, right, bottom, color);
    },
    page_draw_face: function (picture, face, left, top, width, height) {
        return page.brush.drawFace(picture, face, left, top, width, height);
    },
    page_draw_pixels: function (pixels, columns, rows, left, top, width, height) {
        return page.brush.drawPixels( new Uint8ClampedArray(HEAPU8.buffer, pixels, columns * rows * 4).slice(), columns, rows, left, top, width, height);
    },
    page_draw_text: function (text, size, pitch, color, align, style, left, top, width, height) {
        return page.brush.drawText(UTF8ToString(text), size, pitch, color, align, style, left, top, width, height);
    },
    page_draw_line: function (x1, y1, x2, y2, width, color) {
        return page.brush.drawLine(x1, y1, x2, y2, width, color);
    },
    page_draw_triangle: function (x1, y1, x2, y2, x3, y3, color) {
        return page.brush.drawTriangle(x1, y1, x2, y2, x3, y3, color);
    },

    page_set_menu_item: function (window, item, menu, caption, isEnabled, isChecked) {
        return page.window(window).setMenuItem(item, menu, UTF8ToString(caption), isEnabled !== 0, isChecked !== 0);
    },
    page_set_scroll_bar: function (window, item, left, top, width, height, least, most, step, value, name) {
        return page.window(window).setScrollBar(item, left, top, width, height, least, most, step, value, UTF8ToString(name));
    },
    page_open_list: function (window, item, entries, chosen, left, top, width, height) {
        return page.window(window).openList(item, UTF8ToString(entries), chosen, left, top, width, height);
    },
    page_place_list: function (window, top) {
        return page.window(window).placeList(top);
    },
    page_tell_part: function (window, item, kind, name, value, flags, left, top, width, height, least, most) {
        return page.window(window).tellPart(item, kind, UTF8ToString(name), UTF8ToString(value), flags, left, top, width, height, least, most);
    },

    page_open_dialog: function (kind, title, text, style, color) {
        return page.dialogs.open(UTF8ToString(kind), UTF8ToString(title), UTF8ToString(text), style, color);
    },

    page_save_as_download: function (path) {
        return page.files.download(UTF8ToString(path));
    },
    page_load_settings: function (path) {
        return page.files.loadSettings(UTF8ToString(path));
    },
    page_keep_settings: function (path) {
        return (page.files.keepSettings(UTF8ToString(path)) ? 1 : 0);
    },
    page_decode_picture: function (path) {
        return page.pictures.decode(UTF8ToString(path));
    },
    page_take_picture_row: function (y, width, pixels) {
        return page.pictures.takeRow(y, width, HEAPU32.subarray(pixels >> 2, (pixels >> 2) + width));
    },
    page_drop_picture: function () {
        return page.pictures.drop();
    },
    page_play_sound: function (name) {
        return page.sounds.play(UTF8ToString(name));
    },
    page_open_web_page: function (address) { window.open(UTF8ToString(address), '_blank', 'noopener'); },
});
