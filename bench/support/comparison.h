// Measures our way of doing a task beside others, and prints a table.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Rows are tasks, columns are who does them, ours first. A figure is nanoseconds per unit, the
/// median of 15 runs (5 in rows of more than 100,000 units) in random order. Each run is a process
/// of its own and follows an unmeasured call. In brackets: our time divided by the other one's.
class Comparison {
  public:
    using Work = std::function<void()>;

    /// Prints the heading. `unit` is for example "entry". The arguments are Google Benchmark's.
    Comparison(int argumentCount, char** arguments, const std::string& title,
               const std::string& unit, std::vector<std::string> columns);

    /// Measures one row and prints it. Each call of a work handles that many units. There is one
    /// work per column, empty if that column cannot do the task.
    void Measure(const std::string& row, std::size_t units, const std::vector<Work>& works) const;

  private:
    std::vector<std::string> columns_;
};
