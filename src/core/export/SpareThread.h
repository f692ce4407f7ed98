#pragma once

#include <functional>
#include <future>
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

} // namespace zentor
