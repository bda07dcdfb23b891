#include "bench/desktop/stopwatch.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>

namespace quor::bench {

double Stopwatch::milliseconds() const {
    return std::chrono::duration<double, std::milli>(Clock::now() - start_).count();
}

void Stopwatch::report(const char* what) const { std::printf("%9.1f ms  %s\n", milliseconds(), what); }

void Stopwatch::reportMedian(const char* what) {
    const double processor = 1000.0 * static_cast<double>(std::clock() - processorStart_) / CLOCKS_PER_SEC;
    std::sort(times_.begin(), times_.end());
    const double median = times_[times_.size() / 2];
    std::printf("%9.1f ms  %s (%.1f to %.1f; %.0f a second; %.1f ms of processor time)\n", median, what, times_.front(),
                times_.back(), 1000 / median, processor / static_cast<double>(times_.size()));
}

void reportMemory(const char* what) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:") || line.starts_with("VmHWM:"))
            std::printf("%9ld MB  %s (%s)\n", std::stol(line.substr(6)) / 1024, what,
                        line.starts_with("VmRSS:") ? "now" : "at most");
}

} // namespace quor::bench
