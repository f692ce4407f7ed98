#include "Console.h"

#include <windows.h>

namespace winplayer {

void attachParentConsole() {
    AttachConsole(ATTACH_PARENT_PROCESS);
}

void printLine(const std::wstring& text, bool error) {
    HANDLE out = GetStdHandle(error ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    if (!out || out == INVALID_HANDLE_VALUE)
        return;
    const std::wstring line = text + L"\r\n";
    // Through a pipe WriteConsoleW fails, so fall back to UTF-8 bytes.
    DWORD written = 0;
    if (WriteConsoleW(out, line.c_str(), DWORD(line.size()), &written, nullptr))
        return;
    const int n = WideCharToMultiByte(CP_UTF8, 0, line.c_str(), int(line.size()), nullptr, 0,
                                      nullptr, nullptr);
    std::string bytes(size_t(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, line.c_str(), int(line.size()), bytes.data(), n, nullptr,
                        nullptr);
    WriteFile(out, bytes.data(), DWORD(bytes.size()), &written, nullptr);
}

} // namespace winplayer
