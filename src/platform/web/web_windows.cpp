// The windows on the page: which are shown, in which order, at which scale.
#include <string>
#include <utility>

#include "platform/control.h"
#include "platform/web/page.h"
#include "platform/web/web_desktop.h"
#include "platform/window_layout.h"

namespace ombrelia {

namespace {

// What a frame adds above and below a window, units.
constexpr double kFrameHeight = 48;

}  // namespace

double WebDesktop::scaleOf(const Window& window) const {
    const double scale = fittingScale(editor_, page_width(), page_height());
    return window.HasFrame ? scaleForHeight(scale, window.Height + kFrameHeight, page_height())
                           : scale;
}

double WebDesktop::dockedWidth(const Window& window) const {
    for (const auto& [other, view] : views_) {
        if (other->DockedTo == &window) {
            return other->Width;
        }
    }
    return 0;
}

void WebDesktop::fitPage() {
    for (const bool isDocked : {false, true}) {
        for (const auto& [window, view] : views_) {
            if ((window->DockedTo != nullptr) == isDocked) {
                view->fitPage();
            }
        }
    }
    sync();
}

WebView& WebDesktop::viewOf(Window& window) {
    auto& view = views_[&window];
    if (view == nullptr) {
        view = std::make_unique<WebView>(window, nextNumber_++, *this);
    }
    return *view;
}

void WebDesktop::shown(Window& window) {
    WebView& view = viewOf(window);
    if (window.DockedTo != nullptr) {
        if (WebView* host = find(*window.DockedTo); host != nullptr && host->isShown()) {
            view.dock();
            view.show();
            host->keepInside();
        }
        return;
    }
    view.show();
    activate(view);
    for (const auto& [other, docked] : views_) {
        if (other->DockedTo == &window && other->Visible) {
            docked->dock();
            docked->show();
            view.keepInside();
        }
    }
}

void WebDesktop::dockTo(const Window& host) {
    for (const auto& [window, view] : views_) {
        if (window->DockedTo == &host) {
            view->dock();
        }
    }
}

void WebDesktop::activate(WebView& view) {
    const Window* host = view.window().DockedTo;
    WebView* front = host == nullptr ? &view : find(*host);
    if (front != nullptr) {
        active_ = &front->window();
        page_raise_window(front->number());
        page_raise_window(view.number());
    }
}

void WebDesktop::hidden(Window& window) {
    if (WebView* view = find(window)) {
        view->hide();
    }
}

void WebDesktop::unloaded(Window& window) {
    const auto found = views_.find(&window);
    if (found == views_.end()) {
        return;
    }
    found->second->hide();
    leaving_.push_back(std::move(found->second));
    views_.erase(found);
    for (const auto& [other, docked] : views_) {
        if (other->DockedTo == &window) {
            docked->hide();
        }
    }
    if (active_ == &window) {
        WebView* next = editorView();
        active_ = next == nullptr ? nullptr : &next->window();
    }
}

void WebDesktop::minimize(Window& window) {
    if (WebView* view = find(window)) {
        view->hide();
        for (const auto& [other, docked] : views_) {
            if (other->DockedTo == &window) {
                docked->hide();
            }
        }
        page_minimize_window(view->number());
    }
}

void WebDesktop::beginWindowMove(Window& window) {
    viewOf(window).armMove();
}

void WebDesktop::beginDrag(Control& source) {
    WebView& view = viewOf(*source.Owner);
    const PixelRect place = deviceRect(source, view.scale());
    page_set_cursor(view.number(), static_cast<int>(source.Face.picture), source.Face.face,
                    place.width(), place.height());
}

void WebDesktop::endDrag() {
    for (const auto& [window, view] : views_) {
        page_set_cursor(view->number(), 0, 0, 0, 0);
    }
}

void WebDesktop::openList(ListBox& list) {
    WebView& view = viewOf(*list.Owner);
    const PixelRect field = deviceRect(list, view.scale());
    std::string entries;
    for (const std::string& entry : list.List) {
        for (const char letter : entry) {
            entries += letter >= 0 && letter < ' ' ? ' ' : letter;
        }
        entries += '\n';
    }
    int item = 0;
    while (list.Owner->Controls[static_cast<std::size_t>(item)] != &list) {
        ++item;
    }
    const int height = page_open_list(view.number(), item, entries.c_str(), list.ListIndex,
                                      field.left, field.top, field.width(), field.height());
    const double top =
        droppedFrom(view.insideTop() + field.top, field.height(), height, 0, page_height());
    page_place_list(view.number(), static_cast<int>(top) - view.insideTop());
}

std::string WebDesktop::activeWindowCaption() {
    const bool isActive = active_ != nullptr && openDialogs_ == 0 && page_is_active() != 0;
    return isActive ? active_->Caption : std::string();
}

void WebDesktop::openWebPage(const std::string& address) {
    page_open_web_page(address.c_str());
}

}  // namespace ombrelia
