#include "sound/loading_worker.h"

namespace morvane {

LoadingWorker::LoadingWorker() : thread_([this] { run(); }) {}

LoadingWorker::~LoadingWorker() {
    {
        std::lock_guard<std::mutex> lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void LoadingWorker::post(std::function<void()> job) {
    {
        std::lock_guard<std::mutex> lock(mutex_);
        jobs_.push_back(std::move(job));
    }
    changed_.notify_all();
}

void LoadingWorker::waitUntilIdle() {
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return jobs_.empty() && !busy_; });
}

void LoadingWorker::run() {
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return !jobs_.empty() || ending_; });
        if (jobs_.empty())
            return; // ending, and nothing left to do
        std::function<void()> job = std::move(jobs_.front());
        jobs_.pop_front();
        busy_ = true;
        lock.unlock();
        job();
        lock.lock();
        busy_ = false;
        changed_.notify_all();
    }
}

} // namespace morvane
