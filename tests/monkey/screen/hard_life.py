"""What a user's machine does to the program beside the mouse: folders with hostile names and files,
settings that cannot be read or are spoilt, screens that change their size."""
import os
import pathlib
import shutil
import struct
import subprocess
import zlib

SIZES = [(1920, 1080), (1280, 1024), (1280, 800), (1000, 560), (800, 600), (640, 480)]

HOSTILE_NAMES = [
    b"<a href=https:evil.example>click<b>.png", b"<img src=x>.bmp", b"%n%s%1 %2.png", b"-rf",
    b"two\nlines.bmp", b"\xff\xfe\x80.bmp", "\u202egnp.\u202d.bmp".encode(), b"&amp;&File.bmp",
    b" .bmp", b"a" * 251 + b".bmp", b"a\\b;c`d`$(e).bmp", "\u0338\U0001f3d4.png".encode(),
]


def bitmap(side):
    """A grey slope."""
    row = bytes(x % 256 for x in range(side)) + bytes(-side % 4)
    colors = b"".join(bytes((n, n, n, 0)) for n in range(256))
    start = 54 + len(colors)
    head = struct.pack("<2sIHHIIiiHHIIiiII", b"BM", start + side * len(row), 0, 0, start, 40, side,
                       side, 1, 8, 0, side * len(row), 2835, 2835, 256, 0)
    return head + colors + side * row


def png(side, bits=16, data=b""):
    """A head that promises side x side; what follows are the data."""
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", side, side, bits, 0, 0, 0, 0))
            + chunk(b"IDAT", data) + chunk(b"IEND", b""))


def make_folder(above):
    """A folder of maps, with a hostile name, in which little is what it seems; and back to that."""
    maps = os.path.join(os.fsencode(above), b"<img src=x> & zero>")
    os.makedirs(maps, exist_ok=True)
    inside = os.listdir(maps)
    if len(inside) > 200:  # what was saved
        shutil.rmtree(maps)
        os.makedirs(maps)
    for n, name in enumerate(HOSTILE_NAMES):
        content = [b"junk" * 100, bitmap(257), png(16384), bitmap(65)[:3000], b""][n % 5]
        pathlib.Path(os.fsdecode(os.path.join(maps, name))).write_bytes(content)
    plain = {"good.bmp": bitmap(129), "good.png": png(65, 8, zlib.compress(65 * (bytes(66)))),
             "a": bitmap(193), "bomb.png": png(16384, 16, zlib.compress(bytes(40_000_000), 9))}
    for name, content in plain.items():
        pathlib.Path(os.fsdecode(maps), name).write_bytes(content)
    shut = pathlib.Path(os.fsdecode(maps), "shut.bmp")
    if not shut.exists():
        shut.write_bytes(bitmap(65))
        shut.chmod(0)
    special = {"pipe.bmp": os.mkfifo, "folder.bmp": os.mkdir,
               "zero.bmp": lambda path: os.symlink("/dev/zero", path),
               "nowhere.bmp": lambda path: os.symlink("/nowhere/at/all", path),
               "itself.bmp": lambda path: os.symlink("itself.bmp", path)}
    for name, make in special.items():
        path = os.path.join(os.fsdecode(maps), name)
        if not os.path.lexists(path):
            make(path)
    return os.fsdecode(maps)


class Settings:
    """The settings of the program, spoilt by chance before a life and looked at behind it."""

    def __init__(self, folder, chance):
        self.folder, self.chance = pathlib.Path(folder), chance
        self.kept = None  # what must be in the folder afterwards, to the byte

    def path(self):
        return next((p for p in self.folder.rglob("*.ini") if p.is_file()), None)

    def spoil(self):
        """Returns what was done."""
        path, self.kept = self.path(), None
        if path is None or self.chance.random() < 0.5:
            return "as they are"
        self.kept = path.read_bytes()
        deeds = [self.spill, self.cut, self.swell]
        if os.geteuid() != 0:  # nothing is shut to root
            deeds.append(self.shut)
        deed = self.chance.choice(deeds)
        deed(path)
        return deed.__name__

    def shut(self, path):
        path.chmod(0)

    def spill(self, path):
        content = bytearray(self.kept)
        for _ in range(20):
            content[self.chance.randrange(len(content))] = self.chance.randrange(256)
        self.kept = bytes(content)
        path.write_bytes(self.kept)

    def cut(self, path):
        self.kept = self.kept[:self.chance.randrange(len(self.kept))]
        path.write_bytes(self.kept)

    def swell(self, path):
        with path.open("ab") as file:
            file.truncate(17 << 20)  # more than is read
        self.kept = path.read_bytes()

    def check(self, what):
        """What could not be read is there as it was; empty, or what is wrong."""
        path = self.path()
        if what not in ("shut", "swell"):
            return ""
        path.chmod(0o600)
        kept = path.read_bytes() == self.kept
        if what == "swell":
            path.unlink()
        return "" if kept else f"settings that could not be read ({what}) were replaced"


class Screens:
    """Sizes of the screen, no larger than it was made."""

    def __init__(self, width, height, chance):
        self.chance = chance
        self.modes = [s for s in SIZES if s[0] <= width and s[1] <= height]
        for width, height in self.modes:
            times = [str(side + more) for side in (width, height) for more in (0, 8, 16, 24)]
            self.tell("--newmode", f"monkey{width}", "60", *times)
            self.tell("--addmode", "screen", f"monkey{width}")

    def tell(self, *words):
        subprocess.run(["xrandr", *words], stderr=subprocess.DEVNULL, check=False)

    def change(self):
        """Takes another size and returns it."""
        width, height = self.chance.choice(self.modes)
        self.tell("--output", "screen", "--mode", f"monkey{width}")
        return width, height
