// Where the maker's page stands.
#pragma once

namespace ombrelia {

inline constexpr const char* kMakerPage = "https://quillbyte.invalid/";

}  // namespace ombrelia
