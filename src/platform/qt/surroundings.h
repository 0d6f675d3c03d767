// What surrounds the program may be out of order, which shall not stop it.
#pragma once

#include <string>

namespace ombrelia {

// Before the application object: nonsense in the toolkit's environment counts for nothing, a
// session bus that does not answer is left alone, and no usable display ends the process with a
// sentence on the standard error and status 1.
void prepareSurroundings();

// Whether somebody answers behind an address such as "unix:path=/run/user/1000/bus" within half a
// second; true for addresses of other kinds.
bool isBusAnswering(const std::string& address);

}  // namespace ombrelia
