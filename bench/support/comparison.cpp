#include "support/comparison.h"

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

/// Keeps the medians and prints nothing.
class Medians : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
                nanoseconds[run.run_name.function_name] = run.GetAdjustedRealTime();
            }
        }
    }
    std::map<std::string, double> nanoseconds;
};

/// Calls the work once to warm up, then for at least 30 ms; returns the mean of the latter.
double Seconds(const Comparison::Work& work) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::duration<double> Least(0.03);
    // Freed memory stays in the process: fresh pages from the kernel for each call would cost those
    // with much memory more than half of what is compared.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    work();
    const auto start = Clock::now();
    std::chrono::duration<double> passed{};
    int calls = 0;
    do {
        work();
        ++calls;
        passed = Clock::now() - start;
    } while (passed < Least);
    return passed.count() / calls;
}

/// Measures in a child process, so that the heap does not depend on who ran before.
double SecondsAlone(const Comparison::Work& work) {
    int ends[2] = {};
    if (pipe(ends) != 0) {
        std::abort();
    }
    const pid_t child = fork();
    if (child == 0) {
        const double seconds = Seconds(work);
        const bool sent = write(ends[1], &seconds, sizeof seconds) == sizeof seconds;
        _exit(sent ? 0 : 1);
    }
    close(ends[1]);
    double seconds = 0;
    const bool received = child > 0 && read(ends[0], &seconds, sizeof seconds) == sizeof seconds;
    close(ends[0]);
    if (!received || waitpid(child, nullptr, 0) != child) {
        std::abort();
    }
    return seconds;
}

}  // namespace

Comparison::Comparison(int argumentCount, char** arguments, const std::string& title,
                       const std::string& unit, std::vector<std::string> columns)
    : columns_(std::move(columns)) {
    // In random order, so that whatever else keeps the machine busy disturbs everyone alike.
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> all(arguments, arguments + argumentCount);
    all.insert(all.begin() + 1, interleave.data());
    argumentCount = static_cast<int>(all.size());
    benchmark::Initialize(&argumentCount, all.data());

    std::printf("%s: ns per %s, median; (our time divided by theirs)\n\n%-28s", title.c_str(),
                unit.c_str(), "");
    for (const std::string& column : columns_) {
        std::printf("%20s", column.c_str());
    }
    std::printf("\n");
}

void Comparison::Measure(const std::string& row, std::size_t units,
                         const std::vector<Work>& works) const {
    constexpr std::size_t LargeRow = 100'000;
    const auto nameOf = [&](std::size_t column) { return row + '|' + columns_[column]; };
    for (std::size_t column = 0; column < works.size(); ++column) {
        if (const Work& work = works[column]) {
            const auto run = [&work](benchmark::State& state) {
                for ([[maybe_unused]] const auto& turn : state) {
                    state.SetIterationTime(SecondsAlone(work));
                }
            };
            benchmark::RegisterBenchmark(nameOf(column).c_str(), run)
                ->Iterations(1)
                ->Repetitions(units > LargeRow ? 5 : 15)
                ->UseManualTime();
        }
    }
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    benchmark::ClearRegisteredBenchmarks();

    std::printf("%-28s", row.c_str());
    const double ours = medians.nanoseconds[nameOf(0)] / static_cast<double>(units);
    std::printf("%20.1f", ours);
    for (std::size_t column = 1; column < columns_.size(); ++column) {
        const double time = medians.nanoseconds[nameOf(column)] / static_cast<double>(units);
        if (time > 0) {
            std::printf("%12.1f (%5.2f)", time, ours / time);
        } else {
            std::printf("%20s", "-");
        }
    }
    std::printf("\n");
    std::fflush(stdout);
}
