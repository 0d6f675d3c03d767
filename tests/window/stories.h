// Beginnings that several stories share.
#pragma once

#include "core/button_numbers.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "screen_driver.h"

namespace ombrelia {

// From the splash to the choice of the size. On a full machine the splash can be over before it is
// seen.
inline bool openSizeSelect(ScreenDriver& driver) {
    if (!driver.waitForEither(frmSplash, SizeSelect)) {
        return false;
    }
    bool isSplash = false;
    driver.inProgram([&] { isSplash = frmSplash.Visible; });
    if (isSplash) {
        driver.click(frmSplash, 60, 60);
    }
    return driver.waitForWindow(SizeSelect);
}

// From the splash to the editor with a map of the size whose button is named.
inline bool openEditor(ScreenDriver& driver, int sizeButton) {
    if (!openSizeSelect(driver)) {
        return false;
    }
    driver.click(SizeSelect.LTool(sizeButton));
    return driver.waitForWindow(Form1);
}

// Presses a wide button of the option strip or the top strip on its text.
inline void pressWide(ScreenDriver& driver, int number) {
    driver.click(Form1.LTool(number));
}

}  // namespace ombrelia
