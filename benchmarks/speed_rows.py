"""Rows of the table of speed: what is measured, and the benchmarks that it is measured by."""
from typing import NamedTuple


class Row(NamedTuple):
    what: str
    ours: str
    plain: str = ""    # the plain second implementation
    public: str = ""   # the nearest public program or library
    label: str = ""    # its name
    limit: str = ""    # what one core can do at best with the same data
    # ("most" or "least", times, benchmark): at most 2 times that one, at least 15 times as fast;
    # ("bound", times, benchmark): more than a frame is no miss within so many times that one.
    target: tuple = ()


# limit "samples": the benchmark's own samples at the pace of visitSamples.
OPERATIONS = (
    Row("generate, Detail 8", "generate/8", "generatePlainly/8", "imageMagickPlasma",
        "ImageMagick plasma", "drawsAndStores/8", ("most", 2, "textbookDiamondSquare")),
    Row("generate, Detail 7", "generate/7", limit="drawsAndStores/7",
        target=("most", 2, "textbookDiamondSquare")),
    Row("generate, Detail 6", "generate/6", limit="drawsAndStores/6"),
    Row("generate, Detail 5", "generate/5", "generatePlainly/5", limit="drawsAndStores/5"),
    Row("generate, Detail 4", "generate/4", limit="drawsAndStores/4"),
    Row("generate, Detail 3", "generate/3", limit="drawsAndStores/3"),
    Row("generate, Detail 2", "generate/2", limit="drawsAndStores/2"),
    Row("generate, Detail 1", "generate/1", limit="drawsAndStores/1"),
    Row("textbook diamond-square, mapped", "textbookDiamondSquare"),
    Row("the command: generate and refresh", "generateCommand"),
    Row("refresh, all cells changed", "refreshEverything", "refreshPlainly", "qImageIndexed",
        "QImage, 8 to 32 bits", "moveMapBytes", ("most", 2, "lookUpAndStore")),
    Row("a bare loop of look-up and store", "lookUpAndStore", public="qImageSetPixel",
        label="QImage::setPixel"),
    Row("refresh, nothing changed", "refreshNothing", "plainCompareLoop",
        limit="compareMapBytes"),
    Row("another set of colours, redrawn", "changeColors", "refreshPlainly", "qImageIndexed",
        "QImage, 8 to 32 bits", "moveMapBytes"),
    Row("export", "exportLarge", "exportPlainly", "qImageSave", "QImage::save",
        "oneSystemWrite"),
    Row("pencil, 599 points, thickness 20", "pencil", "pencilSlow", limit="samples"),
    Row("line, corner to corner, thickness 20", "line", "lineSlow", limit="samples"),
    Row("mountain, 255 high, smooth, top 30", "mountain", "mountainSlow", limit="samples"),
    Row("canyon, 599 points, smooth, bank 25, river", "canyon", "canyonSlow", limit="samples"),
    Row("plain, radius 30", "plainObject", "plainObjectSlow", limit="samples"),
    Row("raise, a drag of 500 moves", "raiseDrag", "raiseDragSlow", limit="samples"),
    Row("lower, a drag of 500 moves", "lowerDrag", "lowerDragSlow", limit="samples"),
    Row("3-D lines, generated map", "drawFull/0/0", "drawPlainly/0/0", "drawWithQPainter/0/0",
        "QPainter", "projectAndClear", ("least", 15, "drawWithQPainter/0/0")),
    Row("3-D dots, generated map", "drawFull/1/0", "drawPlainly/1/0", "drawWithQPainter/1/0",
        "QPainter", "projectAndClear"),
    Row("3-D polygons, generated map", "drawFull/2/0", "drawPlainly/2/0", "drawWithQPainter/2/0",
        "QPainter", "projectAndClear", ("least", 15, "drawWithQPainter/2/0")),
    Row("3-D lines, noise", "drawFull/0/1", public="drawWithQPainter/0/1", label="QPainter",
        limit="projectAndClear"),
    Row("3-D dots, noise", "drawFull/1/1", limit="projectAndClear"),
    Row("3-D polygons, noise", "drawFull/2/1", public="drawWithQPainter/2/1", label="QPainter",
        limit="projectAndClear"),
    Row("3-D lines next to Cairo", "drawFull/0/0", public="drawWithCairo/0/0", label="Cairo"),
    Row("3-D polygons next to Cairo", "drawFull/2/0", public="drawWithCairo/2/0", label="Cairo"),
    Row("quick grid, one mouse move", "drawQuickGrid", "projectFourTimesACell",
        limit="fillPixels/257/257"),
    Row("import, BMP of 4096 x 4096", "importPicture/bmp", public="decodeAlone/bmp",
        label="QImageReader", limit="readAlone/bmp"),
    Row("import, PNG of 4096 x 4096", "importPicture/png", public="decodeAlone/png",
        label="QImageReader", limit="readAlone/png",
        target=("bound", 1.1, "decodeAlone/png")),
    Row("import, JPEG of 4096 x 4096", "importPicture/jpg", public="decodeAlone/jpg",
        label="QImageReader", limit="readAlone/jpg",
        target=("bound", 1.1, "decodeAlone/jpg")),
    Row("128 mazes, 60 x 40 square rooms", "searchMazes/hex:0", "searchMazesPlainly/hex:0",
        limit="drawMazes"),
    Row("128 mazes, 61 x 40 hexagonal rooms", "searchMazes/hex:1", "searchMazesPlainly/hex:1"),
    Row("maze picture, square", "paintMaze/hex:0", limit="fillPixels/1457/1000"),
    Row("maze picture, hexagonal", "paintMaze/hex:1", limit="fillPixels/1457/1000"),
    Row("worm, one tick", "wormTick", public="qPainterTwoCells", label="QPainter, two cells"),
    Row("worm, cross-fade of 25 pictures", "wormCrossFade", public="qPainterCrossFade",
        label="QPainter"),
)

# Measured for comparison alone.
COMPARISONS = ("textbook diamond-square, mapped", "a bare loop of look-up and store")

# Many operations in a row.
NOT_OF_ONE_FRAME = ("raise, a drag of 500 moves", "lower, a drag of 500 moves",
                    "128 mazes, 60 x 40 square rooms", "128 mazes, 61 x 40 hexagonal rooms")


class ProgramRow(NamedTuple):
    what: str
    ours: str
    empty: str
    unit: str
    factor: float  # at most so many times the empty window, 0: no such target
    frame: bool    # at most one display frame


SCALES = ("1", "1.25", "2", "3", "4")

PROGRAM = (
    *(ProgramRow(f"start to the first painted window, at scale {scale}", f"start_editor/{scale}",
                 f"start_empty/{scale}", "ms", 1.2, False) for scale in SCALES),
    ProgramRow("peak memory of a start", "start_editor/2:peak_MiB", "start_empty/2:peak_MiB",
               "MiB", 1.5, False),
    ProgramRow("idle, share of a core", "idle_editor", "idle_empty", "%", 0, False),
    ProgramRow("hover over a button to its new face", "latency/hover", "latency/empty", "ms", 0,
               True),
    ProgramRow("slider drag to the moved thumb", "latency/slider", "latency/empty", "ms", 0,
               True),
    ProgramRow("raise drag to the raised ground", "latency/raise", "latency/empty", "ms", 0,
               True),
    ProgramRow("3-D turn to the turned grid", "latency/rotate", "latency/empty", "ms", 0, True),
    ProgramRow("stop click to the green light", "latency/stop", "latency/empty", "ms", 0, True),
)
