#include "Music.h"

#include <mmsystem.h>

namespace show = zentor::show;

namespace winplayer {
namespace {

constexpr const wchar_t* Alias = L"zentormusic";

std::wstring tempFileFor(const show::PackageFile& package) {
    const show::BlobRange r = package.Info.range(show::Package::MusicEntry);
    wchar_t folder[MAX_PATH];
    if (r.Length <= 0 || !GetTempPathW(MAX_PATH, folder))
        return {};
    const std::wstring path =
        std::wstring(folder) + L"zentor-music-" + std::to_wstring(GetCurrentProcessId()) + L".mp3";
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_TEMPORARY, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    DWORD written = 0;
    const bool ok =
        WriteFile(file, package.Bytes.data() + r.Offset, DWORD(r.Length), &written, nullptr) &&
        written == DWORD(r.Length);
    CloseHandle(file);
    if (!ok) {
        DeleteFileW(path.c_str());
        return {};
    }
    return path;
}

} // namespace

Music::Music(const show::PackageFile& package, const show::MusicSettings& settings, HWND window)
    : settings_(settings), window_(window) {
    if (!settings_.Present)
        return;
    file_ = tempFileFor(package);
    if (file_.empty())
        return;
    open_ = send(L"open \"" + file_ + L"\" type mpegvideo alias " + Alias);
    if (!open_)
        return;
    setVolume(int(settings_.Volume * 1000.0 + 0.5));
    send(std::wstring(L"play ") + Alias + L" notify");
}

Music::~Music() {
    if (open_)
        send(std::wstring(L"close ") + Alias);
    if (!file_.empty())
        DeleteFileW(file_.c_str());
}

bool Music::send(const std::wstring& command) {
    return mciSendStringW(command.c_str(), nullptr, 0, window_) == 0;
}

// MCI's volume runs 0..1000, as the document's does.
void Music::setVolume(int volume) {
    send(std::wstring(L"setaudio ") + Alias + L" volume to " + std::to_wstring(volume));
}

void Music::setMuted(bool muted) {
    if (open_)
        setVolume(muted ? 0 : int(settings_.Volume * 1000.0 + 0.5));
}

void Music::ended(WPARAM flags) {
    if (!open_ || flags != MCI_NOTIFY_SUCCESSFUL || !settings_.Loop)
        return;
    send(std::wstring(L"seek ") + Alias + L" to start");
    send(std::wstring(L"play ") + Alias + L" notify");
}

} // namespace winplayer
