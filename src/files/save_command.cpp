#include "files/save_command.h"

#include "core/objects.h"
#include "files/formats_table.h"
#include "platform/services.h"

namespace ombrelia {

void SaveCommand() {
    const std::string name =
        services().dialogs->askSaveFile("Save Terrain", dialogFilter(kSavedFormats));
    if (name.empty()) {
        return;
    }
    std::int16_t result = 0;
    formatOfName(kSavedFormats, name).write(name, MapSize, result);
}

}  // namespace ombrelia
