#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <condition_variable>
#include <deque>
#include <mutex>

#include "export/SpareThread.h"

namespace zentor {

// The web page's file as it is made: its beginning, then each picture and the music as a
// data URI in an element of its own, then the rest. The data come in while the pages are
// still being drawn; they are encoded in spare time (SpareThread) onto the end of one buffer
// that only grows, so the megabytes are written once, where they stay, and mostly before
// the last page is done.
class WebPageStream {
public:
    explicit WebPageStream(QByteArray start);
    ~WebPageStream();
    WebPageStream(const WebPageStream&) = delete;
    WebPageStream& operator=(const WebPageStream&) = delete;

    // Queues `bytes` as the text of the element `id`: "data:`mime`;base64,...". Elements
    // are written in the order added.
    void add(QByteArray id, QByteArray mime, QByteArray bytes);
    // The whole file: all that was added, then `rest`.
    QByteArray finish(QByteArrayView rest);

private:
    struct Item {
        QByteArray id, mime, bytes;
    };
    void run();

    QByteArray out_; // only the thread touches it until finish
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<Item> queue_;
    bool closing_ = false;
    bool dropping_ = false;
    SpareThread thread_; // last: started once the rest is in place
};

} // namespace zentor
