#include "support/comparison.h"

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

constexpr char separator = '|';

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

template <class List, class Same>
void AddOnce(List& list, typename List::value_type item, Same same) {
    if (std::ranges::find_if(list, same) == list.end()) {
        list.push_back(std::move(item));
    }
}

/// Once to warm up, then for a while; gives the mean.
double Seconds(const std::function<void()>& work) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::duration<double> whole(0.03);
    // Each turn finds the memory that the one before it left: pages fresh from the kernel at each
    // turn would cost what handles much more than half of what is compared.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    work();
    const auto start = Clock::now();
    std::chrono::duration<double> passed{};
    int turns = 0;
    do {
        work();
        ++turns;
        passed = Clock::now() - start;
    } while (passed < whole);
    return passed.count() / turns;
}

/// Measures in a process of its own, so that nobody's heap depends on who came before.
double SecondsAlone(const std::function<void()>& work) {
    int ends[2] = {};
    if (pipe(ends) != 0) {
        std::abort();
    }
    const pid_t child = fork();
    if (child == 0) {
        const double seconds = Seconds(work);
        const bool told = write(ends[1], &seconds, sizeof seconds) == sizeof seconds;
        _exit(told ? 0 : 1);
    }
    close(ends[1]);
    double seconds = 0;
    const bool heard = child > 0 && read(ends[0], &seconds, sizeof seconds) == sizeof seconds;
    close(ends[0]);
    if (!heard || waitpid(child, nullptr, 0) != child) {
        std::abort();
    }
    return seconds;
}

}  // namespace

void Comparison::Add(const std::string& row, const std::string& who, std::size_t units,
                     const std::function<void()>& work) {
    AddOnce(rows_, {row, units}, [&](const Row& other) { return other.name == row; });
    AddOnce(columns_, who, [&](const std::string& other) { return other == who; });
    const std::string name = row + separator + who;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [work](benchmark::State& state) {
                                     for ([[maybe_unused]] const auto& turn : state) {
                                         state.SetIterationTime(SecondsAlone(work));
                                     }
                                 })
        ->Iterations(1)
        ->Repetitions(15)
        ->UseManualTime();
}

void Comparison::Run(int argumentCount, char** arguments) const {
    // Taking turns, so that a machine that is busy for a while is busy for everybody.
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> all(arguments, arguments + argumentCount);
    all.insert(all.begin() + 1, interleave.data());
    argumentCount = static_cast<int>(all.size());
    benchmark::Initialize(&argumentCount, all.data());
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);

    std::printf("%s: ns per %s, median of 15 runs; (times as long as that ours takes)\n\n%-28s",
                title_.c_str(), unit_.c_str(), "");
    for (const std::string& column : columns_) {
        std::printf("%20s", column.c_str());
    }
    for (const Row& row : rows_) {
        std::printf("\n%-28s", row.name.c_str());
        double ours = 0;
        for (const std::string& column : columns_) {
            const auto found = medians.nanoseconds.find(row.name + separator + column);
            if (found == medians.nanoseconds.end()) {
                std::printf("%20s", "-");
                continue;
            }
            const double time = found->second / static_cast<double>(row.units);
            if (column == columns_.front()) {
                ours = time;
                std::printf("%20.1f", time);
            } else {
                std::printf("%12.1f (%5.2f)", time, ours / time);
            }
        }
    }
    std::printf("\n");
}
