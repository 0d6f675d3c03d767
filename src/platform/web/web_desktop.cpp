#include "platform/web/web_desktop.h"

#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/access.h"
#include "platform/dispatch.h"
#include "platform/exposure.h"
#include "platform/failure.h"
#include "platform/timer_rest.h"

namespace ombrelia {

namespace {

template <typename T>
T numberTo(double number) {
    return static_cast<T>(static_cast<int>(number));
}

std::string takeEventText() {
    char* text = page_event_text();
    std::string taken(text);
    std::free(text);
    return taken;
}

}  // namespace

WebDesktop::WebDesktop(const EditorSize& editor) : editor_(editor) {
    keptInput_.OnReleased = [this] { hasReleased_ = true; };
}

void WebDesktop::runLoop() {
    while (!hasEnded()) {
        pump();
    }
    handled();
}

void WebDesktop::pump(double milliseconds) {
    double wait = hasReleased_ && !keptInput_.isHolding() ? 0 : milliseconds;
    if (!keptInput_.isHolding()) {
        for (const auto& [window, view] : views_) {
            wait = std::min(wait, view->nextTick() - page_milliseconds());
        }
    }
    page_wait(std::isinf(wait) ? -1 : std::max(0.0, wait));
    if (!keptInput_.isHolding() && std::exchange(hasReleased_, false)) {
        keptInput_.replay();
    }
    Numbers numbers{};
    while (const int kind = page_take_event(numbers.data())) {
        handle(static_cast<PageEventKind>(kind), numbers);
    }
    fireTimers();
    if (!isHandling()) {
        leaving_.clear();
    }
}

void WebDesktop::fireTimers() {
    if (keptInput_.isHolding()) {
        return;
    }
    std::vector<Window*> windows;
    for (const auto& [window, view] : views_) {
        windows.push_back(window);
    }
    for (Window* window : windows) {
        if (WebView* view = find(*window); view != nullptr && !hasEnded()) {
            view->tickDue(page_milliseconds());
        }
    }
}

WebView* WebDesktop::find(const Window& window) const {
    const auto found = views_.find(const_cast<Window*>(&window));
    return found == views_.end() ? nullptr : found->second.get();
}

WebView* WebDesktop::byNumber(double number) const {
    for (const auto& [window, view] : views_) {
        if (view->number() == numberTo<int>(number)) {
            return view.get();
        }
    }
    return nullptr;
}

WebView* WebDesktop::editorView() const {
    for (const auto& [window, view] : views_) {
        if (view->isShown() && window->DockedTo == nullptr && !window->StandsAlone) {
            return view.get();
        }
    }
    return nullptr;
}

void WebDesktop::handle(PageEventKind kind, const Numbers& numbers) {
    if (hasEnded()) {
        return;
    }
    if (kind == PageEventKind::Answer) {
        answers_[numberTo<int>(numbers[0])] = {numbers[1] != 0, numbers[2], takeEventText()};
    } else if (kind == PageEventKind::Picture) {
        Decoded = {numberTo<int>(numbers[0]), numberTo<int>(numbers[1])};
    } else if (kind == PageEventKind::Resize) {
        fitPage();
    } else if (kind == PageEventKind::Key) {
        if (active_ != nullptr) {
            input(
                [&window = *active_, code = numberTo<int>(numbers[1])] { keyInput(window, code); });
        }
    } else if (WebView* view = byNumber(numbers[0]); view != nullptr) {
        handleOf(*view, kind, numbers);
    }
    wakeTimers();
}

void WebDesktop::handleOf(WebView& view, PageEventKind kind, const Numbers& numbers) {
    Window& window = view.window();
    const auto place = static_cast<std::size_t>(std::max(0.0, numbers[1]));
    Control* part = place < window.Controls.size() ? window.Controls[place] : nullptr;
    switch (kind) {
        case PageEventKind::Pointer:
            view.pointer({numberTo<PointerKind>(numbers[1]), numbers[2], numbers[3],
                          numberTo<MouseButton>(numbers[4]), numbers[5]});
            break;
        case PageEventKind::Close:
            run([&window] { deliverClose(window); });
            break;
        case PageEventKind::Activate:
            activate(view);
            break;
        case PageEventKind::MenuItem:
            input([part] { deliver(*part, Event::Click); });
            break;
        case PageEventKind::Scroll:
            view.setScrollBar(static_cast<ScrollBar&>(*part), numberTo<int>(numbers[2]),
                              numbers[3] != 0);
            break;
        case PageEventKind::FrameSize:
            view.takeFrameSize(numberTo<int>(numbers[1]), numberTo<int>(numbers[2]));
            break;
        case PageEventKind::ListEntry: {
            auto& list = static_cast<ListBox&>(*part);
            const auto entry = static_cast<std::size_t>(numbers[2]);
            if (entry < list.List.size() && isEnabled(list)) {
                list.ListIndex = numberTo<int>(numbers[2]);
                list.Caption = list.List[entry];
                run([&list] { deliver(list, Event::Click); });
            }
            break;
        }
        case PageEventKind::PressPart:
            input([part] { pressWithoutPointer(*part); });
            break;
        case PageEventKind::SetPart:
            input([part, value = numbers[2]] { setValueWithoutPointer(*part, value); });
            break;
        case PageEventKind::MoveFrame:
            view.moveByUser(numberTo<int>(numbers[1]), numberTo<int>(numbers[2]));
            break;
        case PageEventKind::Restore:
            window.Minimized = false;
            shown(window);
            sync();
            break;
        default:
            break;
    }
}

void WebDesktop::tickAtOnce() {
    std::vector<Window*> windows;
    for (const auto& [window, view] : views_) {
        windows.push_back(window);
    }
    for (Window* window : windows) {
        if (WebView* view = find(*window)) {
            view->tickAtOnce();
        }
    }
}

void WebDesktop::wakeTimers() {
    for (const auto& [window, view] : views_) {
        view->syncTimers();
    }
}

bool WebDesktop::sync() {
    bool isChanged = false;
    for (const auto& [window, view] : views_) {
        isChanged = view->sync() || isChanged;
    }
    return isChanged;
}

void WebDesktop::refresh(Control& control) {
    if (control.Kind != ControlKind::Window || !control.Visible) {
        return;
    }
    // One picture in a display frame, so that a fade can be seen.
    waitUntil(hasPutOff, lastRefresh_ + kFrameMilliseconds - page_milliseconds());
    lastRefresh_ = page_milliseconds();
    viewOf(static_cast<Window&>(control)).sync();
    waitUntil(hasPutOff, 1);
}

// Whoever wants to close a window does not wait.
void WebDesktop::sleep(int milliseconds) {
    sync();
    waitUntil(hasPutOff, milliseconds);
}

void WebDesktop::waitUntil(const std::function<bool()>& isDone, double milliseconds) {
    const KeptInput::Hold hold(keptInput_);
    const double end = page_milliseconds() + milliseconds;
    for (double left = milliseconds; left > 0 && !isDone(); left = end - page_milliseconds()) {
        pump(left);
    }
}

void WebDesktop::yield() {
    if (!yieldClock_.isDue()) {
        return;
    }
    wakeTimers();
    sync();
    pump(0);
    noteYield();
    yieldClock_.restart();
}

void WebDesktop::end() {
    noteEnd();
    for (const auto& [window, view] : views_) {
        view->hide();
    }
}

PageAnswer WebDesktop::waitForAnswer(int dialog) {
    ++openDialogs_;
    wakeTimers();
    while (!answers_.contains(dialog)) {
        pump();
    }
    --openDialogs_;
    wakeTimers();
    return answers_.extract(dialog).mapped();
}

}  // namespace ombrelia
