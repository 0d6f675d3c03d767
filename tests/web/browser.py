"""A real browser on the X screen, worked by real mouse and keys:

    with browser.start("firefox", pixel_ratio=2) as page:
        page.open("page.html")
        page.wait_for("isReady")
        page.click(100, 60)
        color = page.picture(100, 60, 1, 1).at(0, 0)

The page fills the screen. Places are in its CSS pixels from its left top corner. Several browsers
on one screen hide each other. BrowserError says what went wrong."""
from any_browser import PATIENCE, BrowserError  # noqa: F401  (for who uses this)
from chromium import Chromium
from firefox import Firefox

KINDS = {kind.name: kind for kind in (Chromium, Firefox)}


def start(name, downloads=None, pixel_ratio=1):
    """A browser for a with statement, which gives the page: name is one of KINDS."""
    return KINDS[name](downloads, pixel_ratio)
