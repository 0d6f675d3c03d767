"""The page's start, its looks at what the user does, and its idling, in Chromium on the screen."""
import os
import pathlib
import statistics
import time

import browser
import desk

PATIENCE = 60  # seconds for an answer
STARTS = 7
SECONDS = 30  # of idling
CALM = 10     # seconds before them
CANYONS = 5

# As soon as a window stands in the page and that picture has been handed over.
WATCH = """(() => {
    const look = () => {
        if (document.querySelector('#desk > :not([hidden])') === null) {
            requestAnimationFrame(look);
        } else {
            requestAnimationFrame(() => { globalThis.firstPicture = performance.now(); });
        }
    };
    look();
})()"""

# The longest time from one look of a long operation at the waiting events to the next.
LOOKS = """{
    const wait = page.events.wait;
    let last = 0;
    globalThis.longestBlind = 0;
    page.events.wait = function (milliseconds, wakeUp) {
        return wait.call(this, milliseconds, () => {
            const now = performance.now();
            if (milliseconds === 0) {
                longestBlind = Math.max(longestBlind, now - last);
            }
            last = now;
            wakeUp();
        });
    };
}"""


def parents():
    """Each process's parent and its processor time, in ticks."""
    for folder in pathlib.Path("/proc").iterdir():
        if folder.name.isdigit():
            try:
                rest = (folder / "stat").read_text().rpartition(")")[2].split()
            except OSError:
                continue  # it has ended
            yield int(folder.name), int(rest[1]), int(rest[11]) + int(rest[12])


def seconds_of(root):
    """Processor time of a process and of all that stem from it."""
    rows = {pid: (parent, ticks) for pid, parent, ticks in parents()}

    def stems(pid):
        while pid in rows and pid != root:
            pid = rows[pid][0]
        return pid == root

    return sum(ticks for pid, (_, ticks) in rows.items() if stems(pid)) / os.sysconf("SC_CLK_TCK")


def percent_idle(root):
    time.sleep(CALM)
    before = seconds_of(root)
    time.sleep(SECONDS)
    return (seconds_of(root) - before) / SECONDS * 100


def longest_blind(page, path):
    """Milliseconds in which a long operation does not see that the user stops it: the longest such time
    of each of several canyons, the median of them."""
    desk.PAGE = pathlib.Path(path)
    user = desk.Desk(page)
    user.open_editor("Large")
    user.choose("Canyon tool")
    page.evaluate(desk.script(LOOKS))
    found = []
    for _ in range(CANYONS):
        page.evaluate("longestBlind = 0")
        user.stroke(*((20 + 17 * n, 30 + 190 * (n % 2)) for n in range(14)))
        found.append(page.evaluate("longestBlind"))
    user.leave()
    return statistics.median(found)


def measure(path):
    """Milliseconds to the first picture, the least of several; milliseconds without a look at the user;
    per cent of a core of the idle page and of an empty one."""
    with browser.start("chromium") as page:
        root = os.getpid()  # the browser stems from this process
        empty = percent_idle(root)
        page.ask("Page.enable", PATIENCE, page.session)
        page.ask("Page.addScriptToEvaluateOnNewDocument", PATIENCE, page.session, source=WATCH)
        starts = []
        for _ in range(STARTS):
            page.open(path)
            starts.append(page.wait_for("globalThis.firstPicture"))
        idle = percent_idle(root)
        return min(starts), longest_blind(page, path), idle, empty
