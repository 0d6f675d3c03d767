// A fresh start for the next test.
#pragma once

namespace ombrelia {

// Every value, window and handler as in a new process. The settings store is not touched.
void resetProcess();

}  // namespace ombrelia
