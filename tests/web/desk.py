"""The editor's page, worked like the desktop program: by windows, parts and places in units. What is
done is written down as a scenario too, so that the headless tool can do the same (twin)."""
import base64
import contextlib
import json
import os
import pathlib
import subprocess
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = pathlib.Path(os.environ.get("EDITOR_PAGE", ROOT / "build-web/ombrelia-terrain-editor.html"))
SCENARIO = pathlib.Path(os.environ.get("SCENARIO_TOOL", ROOT / "build/scenario"))
PATIENCE = float(os.environ.get("DESK_PATIENCE", 60))  # seconds for whatever the program does
POLL = 0.02
STILL = 0.4  # seconds
TITLE = "Ombrelia Terrain Editor"
MAP = "Map"

# Width in units by which a window is known, as several have one title.
WINDOWS = {"frmSplash": 460, "SizeSelect": 340, "Form1": 771, "HelpFrm": 136, "HelpBox": 566}
CAPTIONS = {"frm3DMaze": "Maze", "Form2": "Lives"}
KEYS = {"Return": 13, "Escape": 27, "Left": 37, "Up": 38, "Right": 39, "Down": 40, "F1": 112}

# Counts what the page hears, and sees how long the program means to sleep.
WATCH = """
window.heard = {}; window.sleepsFor = 0; window.wakes = 0; window.isReached = false;
document.addEventListener('pointermove', () => { isReached = true; }, {once: true});
{
    const events = page.events, put = events.put, wait = events.wait;
    const kinds = Object.keys(kEvent), pointers = Object.keys(kPointer);
    const count = (name) => { heard[name] = (heard[name] || 0) + 1; };
    events.put = function (kind, numbers, text) {
        const name = kinds.find((one) => kEvent[one] === kind);
        count(name);
        if (kind === kEvent.pointer) {
            count(pointers.find((one) => kPointer[one] === numbers[1]));
        }
        return put.call(this, kind, numbers, text);
    };
    events.wait = function (milliseconds, wakeUp) {
        sleepsFor = milliseconds;
        return wait.call(this, milliseconds, () => { ++wakes; wakeUp(); });
    };
}
// Nothing is left to do until somebody does something.
window.isAtRest = () => page.events.wakeUp !== null && page.events.waiting.length === 0 && sleepsFor < 0;
window.until = (holds) => new Promise((done) => {
    const look = () => { const found = holds(); found ? done(typeof found === 'object' || found) : setTimeout(look, 4); };
    look();
});
window.painted = () => new Promise((done) =>
    requestAnimationFrame(() => requestAnimationFrame(() => done(true))));
// The windows that are seen, the one in front last.
window.seenWindows = () => [...page.windows.values()].filter((one) => !one.root.hidden)
    .sort((a, b) => a.root.style.zIndex - b.root.style.zIndex);
window.windowOf = (width, caption) => seenWindows().find((one) => caption
    ? one.caption.includes(caption) : Math.abs(one.size.width / one.size.scale - width) < 2);
window.nameOf = (node) => node.getAttribute('aria-label') || node.textContent;
window.partOf = (one, name) => [...one.parts.values()].map((part) => part.element)
    .find((node) => !node.hidden && nameOf(node) === name);
0
"""


def script(text):
    return f"eval({json.dumps(text)})"


class Desk:
    """`lines` is the scenario of what was done since open()."""

    def __init__(self, page):
        self.page = page
        self.lines = []
        self.at = None

    # The program and its windows.

    def open(self, keeps_settings=False):
        """A new start, as far as the splash."""
        self.leave(keeps_settings)
        self.page.move(0, 0)  # beside the windows, so that the first move is one
        self.page.open(PAGE)
        self.page.wait_for("page !== null && page.windows.size > 0")
        self.page.evaluate(script(WATCH))
        self.until("windowOf(460)")
        self.wait(self.is_reached, "the page does not hear of the mouse")
        self.lines = [f"scale {self.scale('frmSplash')!r}", "start"]
        self.at = 0, 0

    def is_reached(self):
        """Moves the mouse beside the windows. What it does before a page's first picture gets lost."""
        self.page.move(1, 1)
        self.page.move(0, 0)
        return self.page.evaluate("painted().then(() => isReached)")

    def leave(self, keeps_settings=False):
        """So that the browser does not ask when another page is opened."""
        self.page.evaluate("typeof page === 'undefined' || page === null || (page.setHasWork = () => {}, "
                           "page.hasWork = false, "
                           f"{'1' if keeps_settings else 'localStorage.clear()'}, 0)")

    def open_editor(self, size="Small", keeps_settings=False):
        """From the splash to an empty map."""
        self.open(keeps_settings)
        self.click("frmSplash", 100, 100)
        self.press(size, window="SizeSelect")
        self.until("windowOf(771)")
        self.rest()

    def until(self, holds, seconds=PATIENCE):
        """Until an expression of the page's holds: its value."""
        return self.page.evaluate(f"until(() => ({holds}))", seconds)

    def rest(self, seconds=PATIENCE):
        """Until the program has done all it has to do, and the screen shows it."""
        self.until("isAtRest()", seconds)
        self.page.evaluate("painted()")

    def window(self, name):
        """An expression for the page's window."""
        return f"windowOf({WINDOWS.get(name, 0)}, {json.dumps(CAPTIONS.get(name, ''))})"

    def is_shown(self, name):
        return self.page.evaluate(f"{self.window(name)} !== undefined")

    def size(self, name):
        """Device pixels of the page: left, top of the inside, width, height; scale."""
        return self.page.evaluate(
            f"(() => {{ const one = {self.window(name)}, place = one.canvas.getBoundingClientRect();"
            "return {...one.size, left: Math.round(place.left * page.ratio()),"
            " top: Math.round(place.top * page.ratio())}; })()")

    def scale(self, name="Form1"):
        return self.size(name)["scale"]

    def part(self, name, window="Form1"):
        """What assistive technology finds: role, name, state, place in units of the window."""
        return self.page.evaluate(f"""(() => {{
            const one = {self.window(window)}, node = partOf(one, {json.dumps(name)});
            if (node === undefined) return null;
            const unit = one.size.scale / page.ratio();
            const [left, top, width, height] = ['left', 'top', 'width', 'height']
                .map((side) => Number.parseFloat(node.style[side]) / unit);
            return {{left, top, width, height, isDisabled: node.disabled === true,
                    isOn: node.getAttribute('aria-pressed') === 'true' ||
                          node.getAttribute('aria-checked') === 'true', value: node.value || '', text: node.textContent}};
        }})()""")

    def middle(self, name, window="Form1"):
        found = self.part(name, window)
        if found is None:
            raise AssertionError(f"{window} has no part '{name}' that is seen")
        return found["left"] + found["width"] / 2, found["top"] + found["height"] / 2

    def on_map(self, x, y):
        """The place in Form1 of a place on the map's picture, units."""
        corner = self.part(MAP)
        return corner["left"] + x, corner["top"] + y

    # What the user does. Each returns when the page has heard of it.

    def heard(self, kind, do, seconds=PATIENCE):
        before = self.page.evaluate(f"heard.{kind} || 0")
        do()
        self.until(f"(heard.{kind} || 0) > {before}", seconds)

    def pixel(self, window, x, y):
        """The device pixel of the page in which a place lies; the line of a scenario that goes there."""
        size = self.size(window)
        pixel = int(x * size["scale"]), int(y * size["scale"])
        units = " ".join(repr((each + 0.5) / size["scale"]) for each in pixel)
        return (size["left"] + pixel[0], size["top"] + pixel[1]), f"point {window} {units}"

    def move(self, window, x, y):
        place, line = self.pixel(window, x, y)
        if place != self.at:
            self.heard("move", lambda: self.page.move(*(each / self.page.ratio for each in place)))
        self.at = place
        self.lines.append(line)

    def down(self, button=1):
        self.heard("pointer", lambda: self.page.hands.button(button, 1))
        self.lines.append(f"down {'left middle right'.split()[button - 1]}")

    def up(self, button=1):
        self.heard("pointer", lambda: self.page.hands.button(button, 0))
        self.lines += [f"up {'left middle right'.split()[button - 1]}", "tick 3"]

    def click(self, window, x, y, button=1):
        self.move(window, x, y)
        self.down(button)
        self.up(button)

    def press(self, name, window="Form1"):
        """A click on the middle of a part."""
        self.click(window, *self.middle(name, window))

    def choose(self, name, window="Form1"):
        """The same, and what follows from it."""
        self.press(name, window)
        self.rest()

    def turn_wheel(self, button=5):
        """By a notch, at the pointer's place."""
        self.heard("wheel", lambda: self.page.hands.button(button, 1))
        self.page.hands.button(button, 0)
        self.rest()

    def show_colors(self):
        """Turns the option strip to its end, where they stand."""
        self.move("Form1", 600, 250)
        for _ in range(60):
            if self.part("Add Color"):
                return
            self.turn_wheel()
        raise AssertionError("the colours do not come")

    def drag(self, window, *places):
        self.move(window, *places[0])
        self.down()
        for place in places[1:]:
            self.move(window, *place)
        self.up()

    def stroke(self, *places):
        """A drag over the map, and what follows from it."""
        self.drag("Form1", *(self.on_map(*place) for place in places))
        self.rest()

    def touch(self, window, *places):
        """With a finger, down at the first place and up at the last; what follows from it."""
        pixels, lines = zip(*(self.pixel(window, *place) for place in places))
        self.heard("release", lambda: self.page.touch(*([each / self.page.ratio for each in pixel]
                                                        for pixel in pixels)))
        self.rest()
        self.at = None
        self.lines += [lines[0], "down left", *lines[1:], "up left", "tick 3"]

    def key(self, name):
        code = KEYS.get(name) or ord(name.upper())
        self.heard("key", lambda: self.page.key(name))
        self.lines.append(f"key-down {code}")

    def slide(self, name, by):
        """Drags a slider's thumb to the right, units."""
        x, y = self.middle(name)
        self.drag("Form1", (x, y), (x + by / 2, y), (x + by, y))
        self.rest()

    def set_slider(self, name, value):
        """Without the mouse, as assistive technology does; not written down."""
        self.heard("setPart", lambda: self.page.evaluate(f"""void (() => {{
            const node = [...{self.window("Form1")}.parts.values()].map((part) => part.element)
                .find((one) => one.type === 'range' && !one.hidden && nameOf(one) === {json.dumps(name)});
            node.value = {value};
            node.dispatchEvent(new Event('input'));
        }})()"""))
        self.rest()

    # Dialogs of the page.

    def dialog(self, kind):
        """Waits for it: its text."""
        return self.until(f"(document.querySelector('dialog.{kind}[open]') || {{}}).textContent")

    def no_dialog(self):
        self.until("!page.dialogs.isOpen")

    def answer_by_key(self, name):
        self.heard("answer", lambda: self.page.key(name))

    def save(self, name):
        """By the menu: the file that the browser has put there."""
        self.choose("Menu")
        self.lines.append(f"answer save {name}")
        self.press("Save")
        self.dialog("save")
        self.page.type(name)
        self.answer_by_key("Return")
        self.rest()
        return self.page.download()

    def open_file(self, path):
        """By the menu; the file is handed to the page as the browser does after its own dialog."""
        self.choose("Menu")
        self.lines.append(f'answer open "{path}"')
        self.page.evaluate("void (HTMLInputElement.prototype.click = () => {})")
        self.press("Import")
        self.dialog("open")
        data = base64.b64encode(path.read_bytes()).decode()
        self.heard("answer", lambda: self.page.evaluate(f"""void (() => {{
            const bytes = Uint8Array.from(atob('{data}'), (letter) => letter.charCodeAt(0));
            const choice = document.querySelector('dialog.open input'), chosen = new DataTransfer();
            chosen.items.add(new File([bytes], {json.dumps(path.name)}));
            choice.files = chosen.files;
            choice.dispatchEvent(new Event('change'));
        }})()"""))

    def open_file_by_dialog(self, path):
        """By the menu and the browser's own dialog, into which the name is typed."""
        self.choose("Menu")
        self.press("Import")
        self.dialog("open")
        self.wait_for_front(is_editor=False)
        self.wait_for_stillness()
        # Some take no keys before the first click. The first letter brings the line for a name.
        self.page.click(self.page.width / 2, self.page.height / 2)
        self.wait_for_stillness()
        self.page.key("slash")
        self.wait_for_stillness()
        self.page.type(str(path)[1:])
        self.wait_for_stillness()
        self.heard("answer", lambda: self.page.key("o", "Alt_L"))
        self.wait_for_front(is_editor=True)

    def wait_for_stillness(self):
        """Until nothing has changed on the screen for a while, but a cursor that blinks."""
        pictures = [self.page.picture().data]

        def holds():
            time.sleep(STILL / 4)
            pictures.append(self.page.picture().data)
            return len(set(pictures[-4:])) <= 2 and len(pictures) > 4
        self.wait(holds, "the screen does not come to rest")

    def wait_for_front(self, is_editor):
        """Until the page's window has the keyboard, or another."""
        self.wait(lambda: self.has_front() == is_editor,
                  f"the keyboard does not come to {'the editor' if is_editor else 'a dialog'}")

    def has_front(self):
        name = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True,
                              text=True).stdout
        return name.startswith(TITLE)

    def wait(self, holds, wrong):
        """Until something holds that the page does not know."""
        end = time.monotonic() + PATIENCE
        while not holds():
            if time.monotonic() > end:
                raise AssertionError(wrong)
            time.sleep(POLL)

    def pixels(self, window, left, top, width, height):
        """What the screen shows of a place of a window, device pixels."""
        self.page.evaluate("painted()")
        size, ratio = self.size(window), self.page.ratio
        return self.page.picture((size["left"] + left) / ratio, (size["top"] + top) / ratio,
                                 width / ratio, height / ratio)


@contextlib.contextmanager
def twin(lines):
    """The same done by the headless tool: the folder in which it left its files."""
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run([SCENARIO, "-"], input="\n".join(lines) + "\n", text=True, cwd=folder,
                              capture_output=True)
        if done.returncode != 0:
            shown = "\n".join(f"{number + 1}: {line}" for number, line in enumerate(lines))
            raise AssertionError(f"the headless tool ended with {done.returncode}: {done.stderr}\n{shown}")
        pathlib.Path(folder, "said").write_text(done.stdout)
        yield pathlib.Path(folder)
