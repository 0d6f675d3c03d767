// What a yield that is due hands over: in a browser the page lives on, elsewhere there is nothing.
#pragma once

namespace ombrelia {

void passEvents();

}  // namespace ombrelia
