// Times and memory of a program, told on standard output.
#pragma once

#include <chrono>
#include <ctime>
#include <vector>

namespace quor::bench {

class Stopwatch {
public:
    // Runs from now on.
    Stopwatch() = default;
    [[nodiscard]] double milliseconds() const;
    void report(const char* what) const;

    // Of several times: the median, the best and the worst, how many of the median fit into a second, and the processor
    // time of all threads for one, which does not depend on what else runs.
    void add(double milliseconds) { times_.push_back(milliseconds); }
    void reportMedian(const char* what);

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
    std::clock_t processorStart_ = std::clock();
    std::vector<double> times_;
};

// What the process keeps, and the most that it kept.
void reportMemory(const char* what);

} // namespace quor::bench
