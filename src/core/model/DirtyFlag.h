#pragma once

#include <functional>
#include <utility>

namespace zentor {

// The document's changed flag. Commands, panes, dialogs and typing in place all set it;
// whoever shows it (the title bar's modified mark) is told at the change itself. A copy
// carries the value only: an undo snapshot tells nobody.
class DirtyFlag {
public:
    using Watcher = std::function<void(bool)>;

    DirtyFlag(bool value = false) : value_(value) {}
    // noexcept, so that tables of documents (the undo history) move rather than copy them.
    DirtyFlag(const DirtyFlag& other) noexcept : value_(other.value_) {}
    DirtyFlag& operator=(const DirtyFlag& other) { return *this = other.value_; }
    DirtyFlag& operator=(bool value) {
        if (value != value_) {
            value_ = value;
            if (watcher_)
                watcher_(value);
        }
        return *this;
    }
    operator bool() const { return value_; }

    // `w` is told every time the value changes; an empty one stops that.
    void watch(Watcher w) { watcher_ = std::move(w); }

private:
    bool value_;
    Watcher watcher_;
};

} // namespace zentor
