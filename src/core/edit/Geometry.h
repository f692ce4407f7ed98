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

// A rectangle by its edges (left, top, right, bottom), as the profile page's icon ring
// keeps them.
struct EdgeRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    friend bool operator==(const EdgeRect&, const EdgeRect&) = default;
};

// A point in workspace pixels.
struct IntPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const IntPoint&, const IntPoint&) = default;
};

} // namespace zentor
