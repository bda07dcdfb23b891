#include "desktop/render/thread_pool.h"

#include <algorithm>

namespace quor::desktop {

ThreadPool::ThreadPool(unsigned threads) {
    const unsigned wanted = threads == 0 ? std::thread::hardware_concurrency() : threads;
    const unsigned count = std::clamp(wanted, 1U, kMost);
    for (unsigned i = 1; i < count; ++i)
        threads_.emplace_back([this] { work(); });
}

ThreadPool::~ThreadPool() {
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    started_.notify_all();
    for (std::thread& thread : threads_)
        thread.join();
}

void ThreadPool::run(std::size_t count, const std::function<void(std::size_t)>& task) {
    {
        const std::lock_guard lock(mutex_);
        task_ = &task;
        count_ = count;
        next_ = 0;
        if (count > 1) {
            busy_ = threads_.size();
            ++round_;
        }
    }
    started_.notify_all();
    takeTasks();
    std::unique_lock lock(mutex_);
    finished_.wait(lock, [this] { return busy_ == 0; });
}

void ThreadPool::takeTasks() {
    for (std::size_t i = next_++; i < count_; i = next_++)
        (*task_)(i);
}

void ThreadPool::work() {
    std::size_t done = 0;
    std::unique_lock lock(mutex_);
    for (;;) {
        started_.wait(lock, [&] { return isEnding_ || round_ != done; });
        if (isEnding_)
            return;
        done = round_;
        lock.unlock();
        takeTasks();
        lock.lock();
        if (--busy_ == 0)
            finished_.notify_one();
    }
}

} // namespace quor::desktop
