// zentor-player.exe [PACKAGE] [--export DIR] [--frame MS OUT.png]
// Without PACKAGE it shows the package that follows this program's own (padded) bytes.
#include "Console.h"
#include "PlayerWindow.h"
#include "Scene.h"

#include "show/BlobName.h"

#include <shellapi.h>
#include <shlobj.h>

#include <vector>

namespace show = zentor::show;
using namespace winplayer;

namespace {

struct Options {
    std::wstring package;
    std::wstring exportDir;
    std::wstring frameOut;
    int64_t frameMs = -1;
    bool help = false;
    std::wstring error;
};

bool parseMs(const std::wstring& text, int64_t& ms) {
    if (text.empty() || text.size() > 12)
        return false;
    ms = 0;
    for (wchar_t c : text) {
        if (c < L'0' || c > L'9')
            return false;
        ms = ms * 10 + (c - L'0');
    }
    return true;
}

Options parse() {
    Options o;
    int argc = 0;
    wchar_t** argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    for (int i = 1; argv && i < argc; ++i) {
        const std::wstring a = argv[i];
        if (a == L"--export" && i + 1 < argc) {
            o.exportDir = argv[++i];
        } else if (a == L"--frame" && i + 2 < argc) {
            if (!parseMs(argv[++i], o.frameMs))
                o.error =
                    L"--frame wants a time in milliseconds, not \"" + std::wstring(argv[i]) + L"\"";
            o.frameOut = argv[++i];
        } else if (a == L"--help" || a == L"-h" || a == L"/?") {
            o.help = true;
        } else if (a.rfind(L"--", 0) == 0 || !o.package.empty()) {
            o.error = L"unexpected argument \"" + a + L"\"";
        } else {
            o.package = a;
        }
    }
    LocalFree(argv);
    return o;
}

// Win32 file calls rather than iostreams: those would double the program's size.
bool readFile(const std::wstring& path, std::vector<char>& bytes) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER size;
    bool ok = GetFileSizeEx(file, &size) && size.QuadPart < 0x7fffffff;
    if (ok) {
        bytes.resize(size_t(size.QuadPart));
        DWORD read = 0;
        ok = ReadFile(file, bytes.data(), DWORD(bytes.size()), &read, nullptr) &&
             read == bytes.size();
    }
    CloseHandle(file);
    return ok;
}

bool writeFile(const std::wstring& path, const char* bytes, size_t size) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool ok = WriteFile(file, bytes, DWORD(size), &written, nullptr) && written == size;
    CloseHandle(file);
    return ok;
}

int fail(const std::wstring& message, int status = 1) {
    printLine(L"zentor-player: " + message, true);
    return status;
}

// Writes what the player would show and play: the music and the page pictures.
int exportTo(const show::PackageFile& package, std::wstring dir) {
    wchar_t full[MAX_PATH];
    if (GetFullPathNameW(dir.c_str(), MAX_PATH, full, nullptr))
        dir = full;
    const int made = SHCreateDirectoryExW(nullptr, dir.c_str(), nullptr);
    if (made != ERROR_SUCCESS && made != ERROR_ALREADY_EXISTS && made != ERROR_FILE_EXISTS)
        return fail(L"cannot create " + dir);
    for (int entry = show::Package::MusicEntry; entry < show::Package::EntryCount; ++entry) {
        const show::BlobRange r = package.Info.range(entry);
        if (r.Length <= 0)
            continue;
        const char* bytes = package.Bytes.data() + r.Offset;
        const std::string name = show::BlobFileName(entry, bytes, size_t(r.Length));
        const std::wstring path = dir + L"\\" + std::wstring(name.begin(), name.end());
        if (!writeFile(path, bytes, size_t(r.Length)))
            return fail(L"cannot write " + path);
    }
    return 0;
}

// What the window shows `ms` after opening with no input, at the frame's size.
int frameTo(const show::PackageFile& package, int64_t ms, const std::wstring& out) {
    Scene scene(package);
    const show::ShowModel model(show::ShowSettingsOf(package.Info.Header), 0, scene.order());
    const auto frame = scene.frame(model.at(ms), 0);
    if (!savePng(*frame, out))
        return fail(L"cannot write " + out);
    return 0;
}

int run(HINSTANCE instance, int showCommand) {
    const Options options = parse();
    const bool command = options.help || !options.error.empty() || !options.exportDir.empty() ||
                         options.frameMs >= 0;
    if (options.help || !options.error.empty()) {
        if (!options.error.empty())
            fail(options.error);
        printLine(L"usage: zentor-player [PACKAGE] [--export DIR] [--frame MS OUT.png]",
                  !options.help);
        return options.help ? 0 : 2;
    }

    const bool own = options.package.empty();
    std::wstring path = options.package;
    if (own) {
        wchar_t self[MAX_PATH];
        GetModuleFileNameW(nullptr, self, MAX_PATH);
        path = self;
    }
    show::PackageFile package;
    if (!readFile(path, package.Bytes))
        return fail(L"cannot read " + path);
    package.Info = show::ParsePackage(package.Bytes.data(), package.Bytes.size(),
                                      own ? show::PackageForm::SelfRun : show::PackageForm::Detect);
    if (!package.Info.Complete) {
        const std::wstring message =
            own ? L"This program holds no résumé." : path + L" is not a résumé package.";
        if (!command)
            MessageBoxW(nullptr, message.c_str(), L"Vitara Zentor", MB_OK | MB_ICONEXCLAMATION);
        return fail(message);
    }

    if (!options.exportDir.empty())
        if (const int status = exportTo(package, options.exportDir))
            return status;
    if (options.frameMs >= 0)
        if (const int status = frameTo(package, options.frameMs, options.frameOut))
            return status;
    if (command)
        return 0;
    Scene scene(package);
    PlayerWindow window(package, scene);
    return window.run(instance, showCommand);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int showCommand) {
    attachParentConsole();
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    const int code = run(instance, showCommand);
    Gdiplus::GdiplusShutdown(token);
    return code;
}
