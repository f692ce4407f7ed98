#pragma once
#include <windows.h>

#include "show/ShowModel.h"

#include <string>

namespace winplayer {

// The package's music through MCI (winmm, in every Windows): MCI plays MP3 from a file, so
// the bytes go to a temporary file first, removed again when the music is closed. Music
// that cannot be written or opened leaves the show silent.
class Music {
public:
    // Starts at once; `window` receives MM_MCINOTIFY when the piece ends.
    Music(const zentor::show::PackageFile& package, const zentor::show::MusicSettings& settings,
          HWND window);
    ~Music();
    Music(const Music&) = delete;
    Music& operator=(const Music&) = delete;

    void setMuted(bool muted);
    // MM_MCINOTIFY: a piece that played to its end starts again when it repeats.
    void ended(WPARAM flags);

private:
    bool send(const std::wstring& command);
    void setVolume(int volume);

    zentor::show::MusicSettings settings_;
    HWND window_;
    std::wstring file_;
    bool open_ = false;
};

} // namespace winplayer
