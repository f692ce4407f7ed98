#pragma once

// Resource numbers of the pictures this program carries (Resources.rc): the built-in tab
// pictures keep their tab numbers, so tab n's is BuiltInTab + n.
namespace winplayer {
inline constexpr int BuiltInTab = 0; // 1..8
inline constexpr int BuiltInBorder = 9;
inline constexpr int BuiltInLogo = 10;
inline constexpr int BuiltInBackground = 20;
} // namespace winplayer
