#pragma once
#include <string>

// A GUI program has no console; when started from one, its messages go there.
namespace winplayer {
void attachParentConsole();
void printLine(const std::wstring& text);
} // namespace winplayer
