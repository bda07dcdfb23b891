// A few threads that are made once and share the work of each picture.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace quor::desktop {

class ThreadPool {
public:
    // 0: as many as the machine has, at most kMost. The thread that calls run() is one of them.
    explicit ThreadPool(unsigned threads = 0);
    ~ThreadPool();
    ThreadPool(const ThreadPool&) = delete;
    ThreadPool& operator=(const ThreadPool&) = delete;

    static constexpr unsigned kMost = 8;

    // Does `task` for each number below `count`, in any order, several at a time; returns when all are done. A task
    // must not throw.
    void run(std::size_t count, const std::function<void(std::size_t)>& task);

private:
    void work();
    void takeTasks();

    std::mutex mutex_;
    std::condition_variable started_;
    std::condition_variable finished_;
    const std::function<void(std::size_t)>* task_ = nullptr;
    std::size_t count_ = 0;
    std::atomic<std::size_t> next_ = 0;
    std::size_t round_ = 0;
    std::size_t busy_ = 0;
    bool isEnding_ = false;
    std::vector<std::thread> threads_;
};

} // namespace quor::desktop
