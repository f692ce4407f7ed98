#include "export/SpareThread.h"

#ifdef __linux__
#include <pthread.h>
#include <sched.h>
#endif

namespace zentor {
namespace {

void SetIdle([[maybe_unused]] std::thread& thread, [[maybe_unused]] bool idle) {
#ifdef __linux__
    const sched_param param{};
    pthread_setschedparam(thread.native_handle(), idle ? SCHED_IDLE : SCHED_OTHER, &param);
#endif
}

} // namespace

SpareThread::SpareThread(std::function<void()> work) : thread_(std::move(work)) {
    SetIdle(thread_, true);
}

void SpareWork::add(std::function<void()> task) {
    std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
}

void SpareWork::run() {
    for (;;) {
        std::function<void()> task;
        {
            std::lock_guard lock(mutex_);
            if (tasks_.empty())
                return;
            task = std::move(tasks_.front());
            tasks_.pop_front();
            ++running_;
        }
        task();
        {
            std::lock_guard lock(mutex_);
            --running_;
        }
        done_.notify_all();
    }
}

SpareWork::~SpareWork() {
    std::unique_lock lock(mutex_);
    tasks_.clear();
    done_.wait(lock, [this] { return running_ == 0; });
}

void SpareWork::finish() {
    run();
    std::unique_lock lock(mutex_);
    done_.wait(lock, [this] { return running_ == 0; });
}

void SpareThread::join() {
    if (!thread_.joinable())
        return;
    SetIdle(thread_, false);
    thread_.join();
}

} // namespace zentor
