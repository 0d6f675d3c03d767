// The export, which flushes file and folder, next to the same file written byte by byte, by the
// toolkit and in one stream write, which do not, and in one system call, flushed too.
#include <QImage>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "bench_desk.h"
#include "core/objects.h"
#include "files/bitmap_export.h"

namespace ombrelia {

namespace {

constexpr std::size_t kFileBytes = 67898;

std::string scratchFile() {
    return (std::filesystem::temp_directory_path() / "bench_export.bmp").string();
}

void exportLarge(benchmark::State& state) {
    benchDesk(kLargeSize);
    const std::string path = scratchFile();
    for (auto _ : state) {
        state.PauseTiming();
        std::remove(path.c_str());
        state.ResumeTiming();
        std::int16_t result = 0;
        WriteTerrainBitmap(path, kLargeSize, result);
    }
    std::remove(path.c_str());
}
BENCHMARK(exportLarge)->Unit(benchmark::kMicrosecond);

// Byte by byte, the plain way.
void exportPlainly(benchmark::State& state) {
    benchDesk(kLargeSize);
    const std::string path = scratchFile();
    for (auto _ : state) {
        state.PauseTiming();
        std::remove(path.c_str());
        state.ResumeTiming();
        std::string header;
        BuildBitmapHeader(header, kLargeSize);
        std::ofstream stream(path, std::ios::binary);
        for (const char byte : header) {
            stream.put(byte);
        }
        for (int y = kLargeSize - 1; y >= 0; --y) {
            for (int x = 0; x < kLargeSize; ++x) {
                stream.put(static_cast<char>(std::max<int>(HeightMap(x, y), 0)));
            }
            stream << std::string(3, '\0');
        }
    }
    std::remove(path.c_str());
}
BENCHMARK(exportPlainly)->Unit(benchmark::kMicrosecond);

// The same bitmap by the toolkit.
void qImageSave(benchmark::State& state) {
    QImage image(kLargeSize, kLargeSize, QImage::Format_Grayscale8);
    image.fill(40);
    const QString path = QString::fromStdString(scratchFile());
    for (auto _ : state) {
        state.PauseTiming();
        std::remove(scratchFile().c_str());
        state.ResumeTiming();
        if (!image.save(path, "BMP")) {
            state.SkipWithError("the toolkit does not save it");
        }
    }
    std::remove(scratchFile().c_str());
}
BENCHMARK(qImageSave)->Unit(benchmark::kMicrosecond);

// What the system takes to put a new file of these bytes on the disk, with its name.
void oneSystemWrite(benchmark::State& state) {
    const std::string bytes(kFileBytes, 'x');
    const std::string path = scratchFile();
    const std::string folder = std::filesystem::temp_directory_path().string();
    for (auto _ : state) {
        state.PauseTiming();
        std::remove(path.c_str());
        state.ResumeTiming();
        const int file = open(path.c_str(), O_CREAT | O_WRONLY, 0666);
        const int names = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
        if (write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()) ||
            fsync(file) != 0 || fsync(names) != 0) {
            state.SkipWithError("the bytes were not written");
        }
        close(names);
        close(file);
    }
    std::remove(path.c_str());
}
BENCHMARK(oneSystemWrite)->Unit(benchmark::kMicrosecond);

void oneStreamWrite(benchmark::State& state) {
    const std::string bytes(kFileBytes, 'x');
    const std::string path = scratchFile();
    for (auto _ : state) {
        state.PauseTiming();
        std::remove(path.c_str());
        state.ResumeTiming();
        std::ofstream stream(path, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    std::remove(path.c_str());
}
BENCHMARK(oneStreamWrite)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ombrelia
