// The export next to one stream write of the same bytes into a new file.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

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
