// Times and memory of a program, told on standard output.
#pragma once

#include <chrono>
#include <vector>

namespace quor::bench {

class Stopwatch {
public:
    // Runs from now on.
    Stopwatch() = default;
    [[nodiscard]] double milliseconds() const;
    void report(const char* what) const;

    // Of several times: the median, the best and the worst, and how many of the median fit into a second.
    void add(double milliseconds) { times_.push_back(milliseconds); }
    void reportMedian(const char* what);

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
    std::vector<double> times_;
};

// What the process keeps, and the most that it kept.
void reportMemory(const char* what);

} // namespace quor::bench
