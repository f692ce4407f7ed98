// The Windows player: the package of a self-running résumé follows this program's own
// (padded) bytes in the same file.
#include "Console.h"
#include "Picture.h"

#include <vector>

namespace {

constexpr LONGLONG kPackageOffset = ZENTOR_PLAYER_SIZE;

// Win32 file calls rather than iostreams: those would double the program's size.
std::vector<unsigned char> ownPackage() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    std::vector<unsigned char> bytes;
    LARGE_INTEGER size, offset;
    offset.QuadPart = kPackageOffset;
    if (GetFileSizeEx(file, &size) && size.QuadPart > kPackageOffset &&
        SetFilePointerEx(file, offset, nullptr, FILE_BEGIN)) {
        bytes.resize(size_t(size.QuadPart - kPackageOffset));
        DWORD read = 0;
        if (!ReadFile(file, bytes.data(), DWORD(bytes.size()), &read, nullptr) ||
            read != bytes.size())
            bytes.clear();
    }
    CloseHandle(file);
    return bytes;
}

LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
        if (wParam == VK_ESCAPE)
            DestroyWindow(window);
        return 0;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        HDC dc = BeginPaint(window, &paint);
        RECT area;
        GetClientRect(window, &area);
        Gdiplus::Graphics g(dc);
        Gdiplus::SolidBrush white(Gdiplus::Color(255, 255, 255, 255));
        g.FillRectangle(&white, 0, 0, int(area.right), int(area.bottom));
        EndPaint(window, &paint);
        return 0;
    }
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

int runWindow(HINSTANCE instance, int show) {
    WNDCLASSW cls = {};
    cls.lpfnWndProc = windowProc;
    cls.hInstance = instance;
    cls.hCursor = LoadCursor(nullptr, IDC_ARROW);
    cls.lpszClassName = L"ZentorPlayer";
    RegisterClassW(&cls);
    HWND window =
        CreateWindowW(cls.lpszClassName, L"Vitara Zentor", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                      CW_USEDEFAULT, 800, 600, nullptr, nullptr, instance, nullptr);
    if (!window)
        return 1;
    ShowWindow(window, show);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return int(message.wParam);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
    winplayer::attachParentConsole();
    if (ownPackage().empty()) {
        winplayer::printLine(L"This program holds no résumé.");
        return 1;
    }
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    const int code = runWindow(instance, show);
    Gdiplus::GdiplusShutdown(token);
    return code;
}
