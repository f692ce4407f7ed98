#pragma once

namespace zentor {

inline constexpr int StripCount = 9; // strip positions 1..9

// The strip position before / after `strip`, wrapping from 1 to 9 and from 9 to 1.
int PrevStrip(int strip);
int NextStrip(int strip);

// The page shown after the strip changed: the selected position mapped to its tab. With
// no position selected (0) the old page number is mapped as if it were a position, as the
// program always did.
int GetSelectedIndex(int selectedStrip, int oldCurrentTab);

} // namespace zentor
