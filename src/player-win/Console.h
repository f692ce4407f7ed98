#pragma once
#include <string>

// A GUI program has no console; when started from one, its messages go there.
namespace winplayer {
void attachParentConsole();
// One line on standard output, or standard error when `error`.
void printLine(const std::wstring& text, bool error = false);
} // namespace winplayer
