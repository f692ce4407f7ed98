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

void SpareThread::join() {
    if (!thread_.joinable())
        return;
    SetIdle(thread_, false);
    thread_.join();
}

} // namespace zentor
