#pragma once
#include "Music.h"
#include "Scene.h"

#include <memory>

namespace winplayer {

// The full-screen window that carries out the show model: a timer for the show's changes,
// keys and clicks for the recipient's input, the music beside it.
class PlayerWindow {
public:
    PlayerWindow(const zentor::show::PackageFile& package, Scene& scene);
    // Opens the window and runs until it is closed; the process's exit code.
    int run(HINSTANCE instance, int show);

private:
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);

    int64_t now() const;
    void changed();
    void schedule();
    void key(WPARAM key);
    zentor::show::PointerTarget pointerAt(int x, int y) const;
    void react(zentor::show::ShowReaction reaction);
    void paint();
    zentor::show::IconRect fitted() const;

    const zentor::show::PackageFile& package_;
    Scene& scene_;
    zentor::show::ShowModel model_;
    std::unique_ptr<Music> music_;
    bool musicStarted_ = false;
    std::unique_ptr<Gdiplus::Bitmap> frame_;
    HWND window_ = nullptr;
    bool hand_ = false; // the pointer is over something that takes a click
    int64_t frequency_ = 1;
};

} // namespace winplayer
