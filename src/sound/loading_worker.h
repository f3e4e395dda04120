// One thread that reads files for the sound while the game goes on: the soundfont once at
// start-up, then each tune as it is opened. Jobs run one at a time, in the order given.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace morvane {

class LoadingWorker {
  public:
    LoadingWorker();
    // Runs what is still queued, then ends the thread.
    ~LoadingWorker();
    LoadingWorker(const LoadingWorker&) = delete;
    LoadingWorker& operator=(const LoadingWorker&) = delete;

    void post(std::function<void()> job);
    // Returns once every job posted so far has run.
    void waitUntilIdle();

  private:
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_;
    bool busy_ = false;
    bool ending_ = false;
    std::thread thread_; // started last, once the rest is ready
};

} // namespace morvane
