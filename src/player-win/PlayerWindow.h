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
    void pointerAt(int x, int y);
    void click(int x, int y);
    void paint();
    bool homeShown() const;
    Gdiplus::Rect fitted() const;

    const zentor::show::PackageFile& package_;
    Scene& scene_;
    zentor::show::ShowModel model_;
    std::unique_ptr<Music> music_;
    std::unique_ptr<Gdiplus::Bitmap> frame_;
    HWND window_ = nullptr;
    int hover_ = -1; // the ring icon under the pointer, on the home page
    int link_ = -1;  // the contact line under it that links somewhere
    int64_t frequency_ = 1;
};

} // namespace winplayer
