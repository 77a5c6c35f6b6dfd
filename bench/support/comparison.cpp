#include "support/comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
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

}  // namespace

void Comparison::Add(const std::string& row, const std::string& who, std::size_t units,
                     const std::function<void()>& work) {
    AddOnce(rows_, {row, units}, [&](const Row& other) { return other.name == row; });
    AddOnce(columns_, who, [&](const std::string& other) { return other == who; });
    const std::string name = row + separator + who;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [work](benchmark::State& state) {
                                     for ([[maybe_unused]] const auto& turn : state) {
                                         work();
                                     }
                                 })
        ->Repetitions(9)
        ->MinTime(0.02);
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

    std::printf("%s: ns per %s, median of 9 runs; (times as long as that ours takes)\n\n%-28s",
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
