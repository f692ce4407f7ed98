#include "generate/PictureJobs.h"

namespace zentor {

PictureJobs::PictureJobs(std::vector<Job> jobs, int threads, std::function<void()> whenIdle)
    : jobs_(std::move(jobs)), whenIdle_(std::move(whenIdle)) {
    if (threads <= 0)
        return;
    promises_.resize(jobs_.size());
    for (auto& p : promises_)
        futures_.push_back(p.get_future());
    const size_t count = std::min(size_t(threads), jobs_.size());
    for (size_t i = 0; i < count; ++i)
        threads_.emplace_back([this] { work(); });
}

PictureJobs::~PictureJobs() {
    stop_ = true;
    for (std::thread& t : threads_)
        t.join();
}

void PictureJobs::work() {
    while (!stop_) {
        const size_t i = next_++;
        if (i >= jobs_.size()) {
            if (whenIdle_)
                whenIdle_();
            return;
        }
        try {
            promises_[i].set_value(jobs_[i]());
        } catch (...) {
            promises_[i].set_exception(std::current_exception());
        }
    }
}

PictureJobs::Result PictureJobs::take(size_t index) {
    if (threads_.empty())
        return jobs_[index]();
    return futures_[index].get();
}

} // namespace zentor
