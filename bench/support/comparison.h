// Measures our way of doing a thing beside others, and prints one table of it.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Rows are things done, columns are who does them; the first one added is ours. Each figure is the
/// median of several runs that take turns with all the others, each in a process of its own and
/// after one call that is not counted, in nanoseconds for one unit. Beside the figures of the
/// others stands how many times as long ours takes: below 1 is quicker.
class Comparison {
  public:
    /// `unit` is what the figures are for, for example "entry".
    Comparison(std::string title, std::string unit)
        : title_(std::move(title)), unit_(std::move(unit)) {}

    /// Has `who` do `row`, which handles that many units each time `work` is called. Whoever cannot
    /// do a row is left out of it.
    void Add(const std::string& row, const std::string& who, std::size_t units,
             const std::function<void()>& work);

    /// Measures everything and prints the table. The arguments are Google Benchmark's.
    void Run(int argumentCount, char** arguments) const;

  private:
    struct Row {
        std::string name;
        std::size_t units;
    };

    std::string title_;
    std::string unit_;
    std::vector<Row> rows_;
    std::vector<std::string> columns_;
};
