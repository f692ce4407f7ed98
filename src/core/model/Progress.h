#pragma once

#include <functional>

namespace zentor {

// Told before each page of a long run (generation, the exports) with the page's number and
// how many there are; returning false cancels the run, which then leaves no output file.
// An empty one is never asked (the command line runs without it).
using Progress = std::function<bool(int page, int pages)>;

// Asks `progress` if there is one; true when the run may go on.
inline bool GoOn(const Progress& progress, int page, int pages) {
    return !progress || progress(page, pages);
}

} // namespace zentor
