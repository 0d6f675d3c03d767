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
#include "platform/services.h"
#include "platform/window_life.h"
#include "views/map2d/map_transform.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

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

// The back buffer lent to the picture. When the loan ends the buffer has its size and its image
// back: what ShadowMap calls painted is painted.
class BorrowedBuffer {
  public:
    explicit BorrowedBuffer(Surface& picture) : image_(picture) {
        Form1.Mapview2.Canvas.exchangeImage(image_);
        setSize(width(), height());
    }
    ~BorrowedBuffer() {
        Form1.Mapview2.Canvas.exchangeImage(image_);
        setSize(kViewSide, kViewSide);
    }
    BorrowedBuffer(const BorrowedBuffer&) = delete;
    BorrowedBuffer& operator=(const BorrowedBuffer&) = delete;

    int width() const { return Form1.Mapview2.Canvas.width(); }
    int height() const { return Form1.Mapview2.Canvas.height(); }

    // Of the control; what lies beyond the picture stays outside it.
    void widenByOne() { setSize(width() + 1, height() + 1); }

  private:
    static void setSize(int width, int height) {
        Form1.Mapview2.Width = width;
        Form1.Mapview2.Height = height;
    }

    Surface& image_;
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
    explicit PictureHeights(const Surface& picture) : picture_(picture) {}

    std::int16_t at(int x, int y) const {
        const bool isInside = x < picture_.width() && y < picture_.height();
        return isInside ? heightOfPixel(picture_.row(y)[x]) : heightOfColor(-1);
    }

  private:
    const Surface& picture_;
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

int stepOf(int side) {
    return static_cast<int>(
        std::floor(static_cast<float>(side) / static_cast<float>(ImportTarget)));
}

// Required: the far ends count too and read beyond the picture
// (the_far_ends_read_beyond_the_picture).
void samplePicture(const PictureHeights& heights, int width, int height) {
    const int stepX = stepOf(width);
    const int stepY = stepOf(height);
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

void takeHeights(Surface& picture) {
    BorrowedBuffer buffer(picture);
    const int width = buffer.width();
    const int height = buffer.height();
    takePlan(width, height);
    // Required: the tools are enabled from here on (an_import_leaves_the_tools_enabled).
    const LongRun run(LongRun::Tools::Free);
    StopFlag = 0;
    LongRun::announce("Loading Image", ImportTarget);
    const PictureHeights heights(Form1.Mapview2.Canvas);
    if (ImportDirect == 0) {
        samplePicture(heights, width, height);
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
        Surface picture;
        services().pictures->loadPicture(name, picture);
        takeHeights(picture);
    }
    LongRun::tellEnd();
    Form1.Label11.Caption = AppName + sizeSuffix();
    UpdateMapView(1);
    return true;
}

}  // namespace ombrelia
