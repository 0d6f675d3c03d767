// The import of pictures of 4096 x 4096 next to the toolkit's decoding of the same file alone and
// to reading its bytes, the memory that it takes above the idle editor, and how it grows.
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "bench_desk.h"
#include "core/objects.h"
#include "desk/run_command.h"
#include "platform/dispatch.h"
#include "platform/qt/picture_loader.h"

namespace ombrelia {

namespace {

constexpr int kSide = 4096;

struct PictureFile {
    const char* kind;
    int side;

    std::string path() const {
        return (std::filesystem::temp_directory_path() / "bench_import_").string() +
               std::to_string(side) + "." + kind;
    }
};
constexpr PictureFile kFiles[] = {{"bmp", 257},   {"bmp", 512},  {"bmp", 1024},  {"bmp", 2048},
                                  {"bmp", kSide}, {"bmp", 8192}, {"png", 257},   {"png", 512},
                                  {"png", 1024},  {"png", 2048}, {"png", kSide}, {"png", 8192},
                                  {"jpg", kSide}};

// Hills in colour with a little noise, as a photograph has it.
QImage landscape(int side) {
    QImage image(side, side, QImage::Format_RGB32);
    std::uint32_t noise = 1;
    const double step = 227.0 / side;
    for (int y = 0; y < side; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int rough = static_cast<int>(noise >> 29U);
            const auto shade = [&](int place) { return static_cast<int>(place * step) + rough; };
            row[x] = qRgb(shade(x), shade(y), shade((x ^ y) % side));
        }
    }
    return image;
}

// The files of all kinds, gone at the end.
class Files {
  public:
    Files() {
        for (const PictureFile& file : kFiles) {
            constexpr int kQuick = 80;  // of a PNG: little time for making it small
            const int quality = std::string(file.kind) == "png" ? kQuick : -1;
            if (!landscape(file.side).save(QString::fromStdString(file.path()), nullptr, quality)) {
                std::abort();
            }
        }
    }
    ~Files() {
        for (const PictureFile& file : kFiles) {
            std::filesystem::remove(file.path());
        }
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
};

// A figure of /proc/self/status in MiB.
double statusFigure(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind(name, 0) == 0) {
            std::istringstream figure(line.substr(name.size()));
            double kibibytes = 0;
            figure >> kibibytes;
            return kibibytes / 1024;
        }
    }
    return 0;
}

void forgetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

void importPicture(benchmark::State& state, const PictureFile& file) {
    HeadlessPlatform& platform = benchDesk(kLargeSize);
    QtPictureLoader loader(OMBRELIA_EDITOR);
    services().pictures = &loader;
    double above = 0;
    for (auto _ : state) {
        state.PauseTiming();
        platform.OpenAnswers.push_back(file.path());
        forgetPeak();
        const double idle = statusFigure("VmRSS:");
        state.ResumeTiming();
        runHandler(ImportCommand);
        state.PauseTiming();
        above = std::max(above, statusFigure("VmHWM:") - idle);
        state.ResumeTiming();
    }
    if (!platform.Failures.empty()) {
        state.SkipWithError(platform.Failures.front().c_str());
    }
    platform.Failures.clear();
    state.counters["above_idle_MiB"] = above;
    state.counters["picture_MiB"] = file.side * 4.0 * file.side / 1048576;
    state.counters["work"] = static_cast<double>(file.side) * file.side;
}

void decodeAlone(benchmark::State& state, const PictureFile& file) {
    QImageReader::setAllocationLimit(0);
    for (auto _ : state) {
        QImageReader reader(QString::fromStdString(file.path()));
        QImage image;
        if (!reader.read(&image)) {
            state.SkipWithError("the toolkit does not read it");
            return;
        }
        benchmark::DoNotOptimize(image.constBits());
    }
}

// The bytes of the file into memory and as many pixels as it has, nothing done with them.
void readAlone(benchmark::State& state, const PictureFile& file) {
    const auto bytes = static_cast<std::size_t>(std::filesystem::file_size(file.path()));
    std::vector<char> memory(bytes);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(file.side) *
                                      static_cast<std::size_t>(file.side));
    for (auto _ : state) {
        std::ifstream stream(file.path(), std::ios::binary);
        stream.read(memory.data(), static_cast<std::streamsize>(bytes));
        std::fill(pixels.begin(), pixels.end(), static_cast<std::uint32_t>(memory[0]));
        benchmark::DoNotOptimize(pixels.data());
        benchmark::ClobberMemory();
    }
}

void registerFile(const PictureFile& file) {
    const std::string kind = file.kind;
    const auto registerOne = [&](const std::string& name, auto procedure) {
        benchmark::RegisterBenchmark(name.c_str(), procedure, file)->Unit(benchmark::kMillisecond);
    };
    if (file.side == kSide) {
        registerOne("importPicture/" + kind, importPicture);
        registerOne("decodeAlone/" + kind, decodeAlone);
        registerOne("readAlone/" + kind, readAlone);
    }
    if (kind != "jpg") {
        registerOne("growth/import, " + kind + "/side/" + std::to_string(file.side), importPicture);
    }
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    const ombrelia::Files files;
    for (const ombrelia::PictureFile& file : ombrelia::kFiles) {
        ombrelia::registerFile(file);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
