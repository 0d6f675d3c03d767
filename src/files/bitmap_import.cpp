#include "files/bitmap_import.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "files/formats_table.h"
#include "platform/numeric.h"
#include "platform/picture_sink.h"
#include "platform/services.h"
#include "platform/window_life.h"
#include "views/map2d/map_transform.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

constexpr const char* kRunText = "Loading Image";
constexpr std::int16_t kImportedShadow = -1;  // no height: painted at the next refresh

struct PlanRow {
    int fromSide;
    std::int16_t target;
};
// By the smaller side, from the largest on; a picture is never scaled up.
constexpr PlanRow kPlans[] = {{kLargeSize, kLargeSize},
                              {kMediumSize, kMediumSize},
                              {kSmallSize, kSmallSize},
                              {kMiniatureSize, kMiniatureSize}};

int stepOf(int side, int target) {
    return static_cast<int>(std::floor(static_cast<float>(side) / static_cast<float>(target)));
}

// What the import wants of a picture: the whole of a usual one, which the back buffer is lent to;
// of a larger one the pixels that are read. While the file is being read, the panel says so, and
// the red light gives it up.
class ImportWish : public PictureWish {
  public:
    PictureGrid gridFor(int width, int height) override {
        width_ = width;
        height_ = height;
        const ImportPlan plan = planImport(std::min(width, height));
        grid_ = {1, 1, width, height};
        constexpr int kMostWholePixels = 2048 * 2048;
        if (height > kMostWholePixels / width) {
            grid_ = plan.isDirect ? PictureGrid{1, 1, plan.target + 1, plan.target + 1}
                                  : PictureGrid{stepOf(width, plan.target),
                                                stepOf(height, plan.target), width, height};
        }
        return grid_;
    }

    bool goesOn() override {
        if (!isAnnounced_) {
            isAnnounced_ = true;
            SetToolsEnabled(false);
            StopFlag = 0;
            LongRun::moveTo(0);
            LongRun::announce(kRunText, kLargeSize);
        }
        LongRun::yield();
        return !LongRun::noteStop();
    }

    int width() const { return width_; }
    int height() const { return height_; }

    // Whether the pixel lies in the picture; where in what was loaded it stands.
    bool contains(int x, int y) const { return x < width_ && y < height_; }
    Pixel pixelIn(const Surface& loaded, int x, int y) const {
        return loaded.row(y / grid_.stepY)[x / grid_.stepX];
    }

  private:
    PictureGrid grid_;
    int width_ = 0;
    int height_ = 0;
    bool isAnnounced_ = false;
};

// The back buffer lent to the picture. When the loan ends the buffer has its size and its image
// back: what ShadowMap calls painted is painted.
class BorrowedBuffer {
  public:
    BorrowedBuffer(Surface& picture, int width, int height)
        : image_(picture), width_(width), height_(height) {
        Form1.Mapview2.Canvas.exchangeImage(image_);
        setSize(width_, height_);
    }
    ~BorrowedBuffer() {
        Form1.Mapview2.Canvas.exchangeImage(image_);
        setSize(kViewSide, kViewSide);
    }
    BorrowedBuffer(const BorrowedBuffer&) = delete;
    BorrowedBuffer& operator=(const BorrowedBuffer&) = delete;

    // Of the control; what lies beyond the picture stays outside it.
    void widenByOne() { setSize(width_ + 1, height_ + 1); }

  private:
    static void setSize(int width, int height) {
        Form1.Mapview2.Width = width;
        Form1.Mapview2.Height = height;
    }

    Surface& image_;
    int width_;
    int height_;
};

// Says to the gestures on the map that they find it being written.
class RunningImport {
  public:
    RunningImport() { ImportRunning = 1; }
    ~RunningImport() { ImportRunning = 0; }
    RunningImport(const RunningImport&) = delete;
    RunningImport& operator=(const RunningImport&) = delete;
};

std::int16_t heightOfPixel(Pixel pixel) {
    const unsigned sum = ((pixel >> 16U) & 0xFFU) + ((pixel >> 8U) & 0xFFU) + (pixel & 0xFFU);
    return static_cast<std::int16_t>((sum + 1) / 3);  // a third is never half way
}

// The picture's heights by column; 0 outside.
class PictureHeights {
  public:
    PictureHeights(const ImportWish& picture, const Surface& loaded)
        : picture_(picture), loaded_(loaded) {}

    std::int16_t at(int x, int y) const {
        return picture_.contains(x, y) ? heightOfPixel(picture_.pixelIn(loaded_, x, y))
                                       : heightOfColor(-1);
    }

  private:
    const ImportWish& picture_;
    const Surface& loaded_;
};

void writePoint(int x, int y, std::int16_t height) {
    HeightMap(x, y) = height;
    ShadowMap(x, y) = kImportedShadow;
}

// Place on the map of a pixel on a side of the picture; all in single precision.
float placeOnMap(int pixel, int side) {
    const auto target = static_cast<float>(ImportTarget);
    return target * (static_cast<float>(pixel) / static_cast<float>(side));
}

// Required: the far ends count too and read beyond the picture
// (the_far_ends_read_beyond_the_picture).
void samplePicture(const PictureHeights& heights, int width, int height) {
    const int stepX = stepOf(width, ImportTarget);
    const int stepY = stepOf(height, ImportTarget);
    for (int a = 0; a <= width; a += stepX) {
        const auto x = static_cast<int>(roundToEven(placeOnMap(a, width)));
        for (int b = 0; b <= height; b += stepY) {
            const auto y = static_cast<int>(roundToEven(placeOnMap(b, height)));
            writePoint(x, y, heights.at(a, b));
        }
        LongRun::yieldAt(static_cast<std::int32_t>(floorToWhole(placeOnMap(a, width))));
    }
}

void copyPicture(const PictureHeights& heights) {
    for (int a = 0; a <= MapSize; ++a) {
        for (int b = 0; b <= MapSize; ++b) {
            writePoint(a, b, heights.at(a, b));
        }
        LongRun::yieldAt(a);
    }
}

// Sets MapSize, ImportTarget and ImportDirect for a picture of this size.
void takePlan(int width, int height) {
    MapSize = narrowTo<std::int16_t>(std::min(width, height));
    const ImportPlan plan = planImport(MapSize);
    ImportTarget = plan.target;
    ImportDirect = plan.isDirect ? 1 : 0;
    MapSize = ImportTarget;
}

void takeHeights(const ImportWish& wish, Surface& picture) {
    BorrowedBuffer buffer(picture, wish.width(), wish.height());
    takePlan(wish.width(), wish.height());
    // Required: the tools are enabled from here on (an_import_leaves_the_tools_enabled).
    const LongRun run(LongRun::Tools::Free);
    StopFlag = 0;
    LongRun::announce(kRunText, ImportTarget);
    const PictureHeights heights(wish, Form1.Mapview2.Canvas);
    if (ImportDirect == 0) {
        samplePicture(heights, wish.width(), wish.height());
    } else {
        buffer.widenByOne();
        copyPicture(heights);
    }
    MapSize = ImportTarget;
}

}  // namespace

ImportPlan planImport(int smallerSide) {
    const auto* row = std::find_if(std::begin(kPlans), std::end(kPlans),
                                   [&](const PlanRow& r) { return smallerSide >= r.fromSide; });
    if (row == std::end(kPlans)) {
        return {kMiniatureSize, true};
    }
    return {row->target, smallerSide == row->fromSide};
}

std::int16_t heightOfColor(std::int32_t color) {
    const int red = color % 256;
    const int green = color / 256 % 256;
    const int blue = color / 256 / 256;
    return static_cast<std::int16_t>(roundToEven((red + green + blue) / 3.0));
}

bool importPicture() {
    unloadWindow(SizeSelect);
    unloadWindow(Form3);
    const std::string name =
        services().dialogs->askOpenFile("Select Image to Import", dialogFilter(kOpenedFormats));
    if (name.empty() || !services().files->isNameTaken(name)) {
        return false;
    }
    const RunningImport running;
    {
        ImportWish wish;
        Surface picture;
        if (!services().pictures->loadPicture(name, wish, picture)) {
            return false;
        }
        takeHeights(wish, picture);
    }
    LongRun::tellEnd();
    Form1.Label11.Caption = AppName + sizeSuffix();
    UpdateMapView(1);
    return true;
}

}  // namespace ombrelia
