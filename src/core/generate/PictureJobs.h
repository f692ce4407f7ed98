#pragma once

#include <QByteArray>

#include <atomic>
#include <functional>
#include <future>
#include <optional>
#include <thread>
#include <vector>

namespace zentor {

// Picture work the generator will need, run ahead on worker threads in the order given,
// or on the spot when there are no workers. Results are taken by index; taking waits for
// the job. Jobs not yet started when the object goes away are dropped. A worker that finds
// no job left runs `whenIdle` before it ends, while the others finish theirs.
class PictureJobs {
public:
    using Result = std::optional<QByteArray>;
    using Job = std::function<Result()>;

    PictureJobs(std::vector<Job> jobs, int threads, std::function<void()> whenIdle = {});
    ~PictureJobs();
    PictureJobs(const PictureJobs&) = delete;
    PictureJobs& operator=(const PictureJobs&) = delete;

    Result take(size_t index);

private:
    void work();

    std::vector<Job> jobs_;
    std::vector<std::promise<Result>> promises_;
    std::vector<std::future<Result>> futures_;
    std::atomic<size_t> next_{0};
    std::atomic<bool> stop_{false};
    std::function<void()> whenIdle_;
    std::vector<std::thread> threads_;
};

} // namespace zentor
