#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>

namespace zentor {

// The colour vocabulary of text objects: 146 named ARGB colours (0xAARRGGBB). The list
// index is the table index; a text stores the value itself, never the name or index.
inline constexpr int GDIColorCount = 146;
using GDIColorTable = std::array<uint32_t, GDIColorCount>;

// Fills the table with the values, in list order.
void IniGDIColor(GDIColorTable& GDIColor);

// The same values as a ready table.
const GDIColorTable& GDIColor();

// The names in list order ("AliceBlue" first, "YellowGreen" last).
QStringList GDIColorNames();
// The name of one entry; empty outside 0..145.
QString GDIColorName(int index);

// The first entry holding exactly this value, or -1 when none does. Shared values yield
// the earlier name: 0xFF00FFFF is "Aqua", not "Cyan".
int GDIColorIndex(uint32_t argb);

} // namespace zentor
