// What the tests of the import stand on.
#pragma once

#include <functional>
#include <string>

#include "core/objects.h"
#include "editor_fixture.h"
#include "platform/services.h"
#include "platform/surface.h"
#include "temp_folder.h"

namespace ombrelia {

// The color of each pixel of a picture.
using Painter = std::function<Color(int x, int y)>;

Surface pictureOf(int width, int height, const Painter& painter);

// Gives a picture that is in memory.
class PictureInMemory : public PictureLoader {
  public:
    bool loadPicture(const std::string& path, PictureWish& wish, Surface& picture) override;
    Surface Picture;
};

// What a failed or cancelled import leaves as it was.
class Desk {
  public:
    Desk();
    void expectSame() const;

  private:
    HeightGrid heights_;
    HeightGrid shadows_;
    std::int16_t mapSize_;
    std::string title_;
    Surface view_;
    Surface buffer_;
};

class ImportTest : public EditorTest {
  protected:
    // Imports as an event, with this answer in the dialog.
    void import(const std::string& path);

    // Imports a picture of this size.
    void importPixels(int width, int height, const Painter& painter);

    // A command as an event.
    static void run(int command);

    // Whether the running operation is the import itself.
    static bool isImporting();

    // Every cell and its shadow.
    static void fillMap(std::int16_t height);

    TempFolder folder;
};

}  // namespace ombrelia
