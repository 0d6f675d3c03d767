// Start to the first painted window, and peak memory: the editor next to an empty frameless window
// of the same size. Needs a screen; the two programs lie beside this one.
//   bench_start SCALE [OPTION ...]    the scale at which the screen shows the splash
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

std::string ownFolder;
std::string scale;

// Peak memory in KiB of one run that ended well, 0 otherwise.
long runOnce(const std::string& program) {
    const pid_t child = fork();
    if (child == 0) {
        execl(program.c_str(), program.c_str(), scale.c_str(), nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? usage.ru_maxrss : 0;
}

void startProgram(benchmark::State& state, const char* name) {
    const std::string program = ownFolder + "/" + name;
    std::vector<long> peaks;
    for (auto _ : state) {
        const auto before = std::chrono::steady_clock::now();
        const long peak = runOnce(program);
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - before;
        if (peak == 0) {
            state.SkipWithError("the program did not end well");
            return;
        }
        peaks.push_back(peak);
        state.SetIterationTime(took.count());
    }
    std::nth_element(peaks.begin(), peaks.begin() + static_cast<long>(peaks.size() / 2),
                     peaks.end());
    state.counters["peak_MiB"] = static_cast<double>(peaks[peaks.size() / 2]) / 1024;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("It is: bench_start SCALE [OPTION ...]\n", stderr);
        return 2;
    }
    const std::string self = argv[0];
    ownFolder = self.substr(0, self.find_last_of('/'));
    scale = argv[1];
    std::copy(argv + 2, argv + argc, argv + 1);
    --argc;
    for (const char* name : {"start_editor", "start_empty"}) {
        benchmark::RegisterBenchmark((name + ("/" + scale)).c_str(), startProgram, name)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
