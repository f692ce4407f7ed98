#include "export/WebPageStream.h"

#include "export/Base64.h"

#include <algorithm>
#include <cstdint>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace zentor {
namespace {

// Room for `size` bytes in `out`, grown by halves at a time. Each fresh page the program
// touches costs a fault, dearly so in a virtual machine: the megabytes of a page file ask
// for huge pages, a fault for every 2 MB instead of every 4 kB.
void MakeRoom(QByteArray& out, qsizetype size) {
    if (size <= out.capacity())
        return;
    out.reserve(std::max(size, out.capacity() + out.capacity() / 2));
#ifdef __linux__
    constexpr uintptr_t Huge = uintptr_t(2) << 20;
    const auto begin = (reinterpret_cast<uintptr_t>(out.data()) + Huge - 1) & ~(Huge - 1);
    const auto end =
        (reinterpret_cast<uintptr_t>(out.data()) + uintptr_t(out.capacity())) & ~(Huge - 1);
    if (end > begin)
        madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
#endif
}

} // namespace

WebPageStream::WebPageStream(QByteArray start)
    : out_(std::move(start)), thread_([this] { run(); }) {}

WebPageStream::~WebPageStream() {
    {
        std::lock_guard lock(mutex_);
        closing_ = dropping_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void WebPageStream::add(QByteArray id, QByteArray mime, QByteArray bytes) {
    {
        std::lock_guard lock(mutex_);
        queue_.push_back({std::move(id), std::move(mime), std::move(bytes)});
    }
    wake_.notify_one();
}

QByteArray WebPageStream::finish(QByteArrayView rest) {
    {
        std::lock_guard lock(mutex_);
        closing_ = true;
    }
    wake_.notify_one();
    thread_.join();
    out_ += rest;
    return std::move(out_);
}

void WebPageStream::run() {
    for (;;) {
        Item item;
        {
            std::unique_lock lock(mutex_);
            wake_.wait(lock, [this] { return closing_ || !queue_.empty(); });
            if (dropping_ || queue_.empty())
                return;
            item = std::move(queue_.front());
            queue_.pop_front();
        }
        MakeRoom(out_, out_.size() + (item.bytes.size() + 2) / 3 * 4 + item.id.size() +
                           item.mime.size() + 64);
        out_ += "<script type=\"text/plain\" id=\"";
        out_ += item.id;
        out_ += "\">data:";
        out_ += item.mime;
        out_ += ";base64,";
        AppendBase64(out_, item.bytes);
        out_ += "</script>\n";
    }
}

} // namespace zentor
