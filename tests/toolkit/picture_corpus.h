// One small file of each variant that can be imported: seeds for the fuzzers, and what the tests
// load under the sanitizers.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace ombrelia {

// Name and content.
using NamedFile = std::pair<std::string, std::string>;

// Bitmaps of every depth, header, order of rows and compression.
std::vector<NamedFile> bitmapCorpus();

// Everything else that the toolkit reads.
std::vector<NamedFile> pictureCorpus();

}  // namespace ombrelia
