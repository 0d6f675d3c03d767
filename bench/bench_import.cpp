// The import of pictures of 4096 x 4096 next to the toolkit's decoding of the same file alone, and
// the memory that it takes above the idle editor.
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "bench_desk.h"
#include "core/desk/run_command.h"
#include "core/objects.h"
#include "platform/dispatch.h"
#include "platform/qt/picture_loader.h"

namespace ombrelia {

namespace {

constexpr int kSide = 4096;
constexpr const char* kKinds[] = {"bmp", "png", "jpg"};

std::string fileOf(const char* kind) {
    return (std::filesystem::temp_directory_path() / "bench_import.").string() + kind;
}

// Hills in colour with a little noise, as a photograph has it.
QImage landscape() {
    QImage image(kSide, kSide, QImage::Format_RGB32);
    std::uint32_t noise = 1;
    for (int y = 0; y < kSide; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < kSide; ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int rough = static_cast<int>(noise >> 29U);
            row[x] = qRgb(x / 18 + rough, y / 18 + rough, (x ^ y) / 18 + rough);
        }
    }
    return image;
}

// The files of all kinds, gone at the end.
class Files {
  public:
    Files() {
        const QImage image = landscape();
        for (const char* kind : kKinds) {
            if (!image.save(QString::fromStdString(fileOf(kind)))) {
                std::abort();
            }
        }
    }
    ~Files() {
        for (const char* kind : kKinds) {
            std::filesystem::remove(fileOf(kind));
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

void importPicture(benchmark::State& state, const char* kind) {
    HeadlessPlatform& platform = benchDesk(kLargeSize);
    QtPictureLoader loader;
    services().pictures = &loader;
    double above = 0;
    for (auto _ : state) {
        state.PauseTiming();
        platform.OpenAnswers.push_back(fileOf(kind));
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
    state.counters["picture_MiB"] = kSide * 4.0 * kSide / 1048576;
}

void decodeAlone(benchmark::State& state, const char* kind) {
    QImageReader::setAllocationLimit(0);
    for (auto _ : state) {
        QImageReader reader(QString::fromStdString(fileOf(kind)));
        QImage image;
        if (!reader.read(&image)) {
            state.SkipWithError("the toolkit does not read it");
            return;
        }
        benchmark::DoNotOptimize(image.constBits());
    }
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    const ombrelia::Files files;
    for (const char* kind : ombrelia::kKinds) {
        const std::string name = kind;
        benchmark::RegisterBenchmark(("importPicture/" + name).c_str(), ombrelia::importPicture,
                                     kind)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("decodeAlone/" + name).c_str(), ombrelia::decodeAlone, kind)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
