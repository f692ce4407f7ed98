#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <thread>

namespace zentor {

// Work for the time the cores would otherwise leave unused: it runs at idle priority, so
// the pages being drawn beside it never wait for it, until someone waits for it; from then
// on at the normal priority, so that a machine kept busy by other programs cannot hold the
// waiting export back.
class SpareThread {
public:
    explicit SpareThread(std::function<void()> work);
    ~SpareThread() { join(); }
    SpareThread(const SpareThread&) = delete;
    SpareThread& operator=(const SpareThread&) = delete;

    // Raises the priority, then waits for the work to end.
    void join();

private:
    std::thread thread_;
};

// `work`'s result, made in spare time (see SpareThread); get() waits at the normal priority.
template <class T> class SpareResult {
public:
    explicit SpareResult(std::function<T()> work)
        : task_(std::move(work)), result_(task_.get_future()), thread_([this] { task_(); }) {}

    T get() {
        thread_.join();
        return result_.get();
    }

private:
    std::packaged_task<T()> task_;
    std::future<T> result_;
    SpareThread thread_; // last: started once the task is in place, joined first
};

// Work an export adds to generating, for the picture workers that find nothing left to make
// (ResumeGenerator::setIdleWork): it fills the time the last pages leave a core idle. What
// they have not taken, the caller does at the end.
class SpareWork {
public:
    // Drops what no one has taken; waits for what is running.
    ~SpareWork();

    void add(std::function<void()> task);
    // Runs tasks until none is left; on any thread, several at once.
    void run();
    // Runs what is left, then waits for the tasks other threads are running.
    void finish();

private:
    std::mutex mutex_;
    std::condition_variable done_;
    std::deque<std::function<void()>> tasks_;
    int running_ = 0;
};

} // namespace zentor
