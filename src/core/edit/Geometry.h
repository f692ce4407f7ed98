#pragma once

namespace zentor {

// A rectangle as left, top, width and height in whole workspace pixels: the shape of the
// selection frame and of an object's record.
struct IntRect {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    friend bool operator==(const IntRect&, const IntRect&) = default;
};

// A point in workspace pixels.
struct IntPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const IntPoint&, const IntPoint&) = default;
};

} // namespace zentor
