// Writes the seeds of the fuzzers.
//   make_corpus FOLDER      FOLDER/bitmaps and FOLDER/pictures, which must be there
#include <cstdio>

#include "picture_corpus.h"
#include "temp_folder.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "make_corpus FOLDER\n");
        return 2;
    }
    const std::string folder = argv[1];
    for (const auto& [name, bytes] : ombrelia::bitmapCorpus()) {
        ombrelia::writeContent(folder + "/bitmaps/" + name, bytes);
    }
    for (const auto& [name, bytes] : ombrelia::pictureCorpus()) {
        ombrelia::writeContent(folder + "/pictures/" + name, bytes);
    }
    return 0;
}
