#include "PlayerWindow.h"

#include "Text.h"

#include "show/ShowFrame.h"

#include <shellapi.h>

#include <algorithm>
#include <utility>

namespace show = zentor::show;

namespace winplayer {
namespace {

constexpr UINT_PTR ShowTimer = 1;
constexpr UINT StartMusic = WM_APP + 1;
constexpr int FadeStepMs = 15;

bool keyOf(WPARAM key, show::ShowKey& out) {
    using show::ShowKey;
    static constexpr std::pair<WPARAM, ShowKey> Keys[] = {
        {VK_ESCAPE, ShowKey::Escape}, {VK_LEFT, ShowKey::Left},
        {VK_RIGHT, ShowKey::Right},   {VK_UP, ShowKey::Up},
        {VK_DOWN, ShowKey::Down},     {VK_PRIOR, ShowKey::PageUp},
        {VK_NEXT, ShowKey::PageDown}, {VK_SPACE, ShowKey::Space},
        {VK_F5, ShowKey::F5},         {'M', ShowKey::M},
    };
    for (const auto& [vk, mapped] : Keys)
        if (vk == key)
            return out = mapped, true;
    return false;
}

int64_t counterNow() {
    LARGE_INTEGER t;
    QueryPerformanceCounter(&t);
    return t.QuadPart;
}

} // namespace

PlayerWindow::PlayerWindow(const show::PackageFile& package, Scene& scene)
    : package_(package), scene_(scene),
      model_(show::ShowSettingsOf(package.Info.Header), 0, scene.order()) {
    LARGE_INTEGER f;
    QueryPerformanceFrequency(&f);
    frequency_ = std::max<int64_t>(1, f.QuadPart);
}

int64_t PlayerWindow::now() const {
    return counterNow() * 1000 / frequency_;
}

int PlayerWindow::run(HINSTANCE instance, int show) {
    WNDCLASSW cls = {};
    cls.lpfnWndProc = proc;
    cls.hInstance = instance;
    cls.hCursor = LoadCursor(nullptr, IDC_ARROW);
    cls.lpszClassName = L"ZentorPlayer";
    RegisterClassW(&cls);
    const show::ShowProfile& p = package_.Info.Profile;
    const std::wstring title = fromAnsi(p.FirstName) + L" " + fromAnsi(p.LastName);
    // The show's clock starts when the window opens.
    model_ = show::ShowModel(show::ShowSettingsOf(package_.Info.Header), now(), scene_.order());
    window_ = CreateWindowExW(0, cls.lpszClassName, title.c_str(), WS_POPUP, 0, 0,
                              GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr,
                              nullptr, instance, this);
    if (!window_)
        return 1;
    ShowWindow(window_, show == SW_HIDE ? SW_SHOW : show);
    SetForegroundWindow(window_);
    schedule();
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    music_.reset();
    return int(message.wParam);
}

LRESULT CALLBACK PlayerWindow::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self =
            static_cast<PlayerWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, LONG_PTR(self));
        self->window_ = window;
    }
    auto* self = reinterpret_cast<PlayerWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self ? self->handle(message, wParam, lParam)
                : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT PlayerWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
        key(wParam);
        return 0;
    case WM_MOUSEMOVE: {
        const show::PointerTarget target = pointerAt(short(LOWORD(lParam)), short(HIWORD(lParam)));
        hand_ = target.hand();
        react(model_.hover(target));
        return 0;
    }
    case WM_LBUTTONUP: {
        const show::PointerTarget target = pointerAt(short(LOWORD(lParam)), short(HIWORD(lParam)));
        const show::ShowReaction reaction = model_.click(target, now());
        if (reaction == show::ShowReaction::OpenLink) {
            // The mail program or the browser, whichever the recipient has chosen.
            const std::wstring link = fromAnsi(target.Link);
            ShellExecuteW(window_, L"open", link.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
        } else {
            react(reaction);
        }
        return 0;
    }
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT) {
            SetCursor(LoadCursor(nullptr, hand_ ? IDC_HAND : IDC_ARROW));
            return TRUE;
        }
        break;
    case WM_TIMER:
        changed();
        return 0;
    case MM_MCINOTIFY:
        if (music_)
            music_->ended(wParam);
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        paint();
        // The music starts once the first frame is on screen: opening it never delays the
        // picture.
        if (!musicStarted_) {
            musicStarted_ = true;
            PostMessageW(window_, StartMusic, 0, 0);
        }
        return 0;
    case StartMusic:
        music_ = std::make_unique<Music>(package_, show::MusicSettingsOf(package_.Info), window_);
        music_->setMuted(model_.muted());
        return 0;
    case WM_DESTROY:
        KillTimer(window_, ShowTimer);
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

void PlayerWindow::changed() {
    InvalidateRect(window_, nullptr, FALSE);
    schedule();
}

// One timer, set for the model's next change: the next page, or the next step of a fade.
void PlayerWindow::schedule() {
    const int64_t t = now();
    const int64_t next = model_.nextChangeMs(t);
    if (next < 0) {
        KillTimer(window_, ShowTimer);
        return;
    }
    const int64_t wait = std::clamp<int64_t>(next - t, FadeStepMs, 0x7fffffff);
    SetTimer(window_, ShowTimer, UINT(wait), nullptr);
}

void PlayerWindow::key(WPARAM key) {
    show::ShowKey k;
    if (keyOf(key, k))
        react(model_.key(k, now()));
}

void PlayerWindow::react(show::ShowReaction reaction) {
    if (reaction == show::ShowReaction::Quit) {
        DestroyWindow(window_);
        return;
    }
    if (music_)
        music_->setMuted(model_.muted());
    if (reaction == show::ShowReaction::Redraw)
        changed();
}

show::IconRect PlayerWindow::fitted() const {
    RECT area;
    GetClientRect(window_, &area);
    return show::FitFrame({scene_.width(), scene_.height()}, area.right, area.bottom);
}

show::PointerTarget PlayerWindow::pointerAt(int x, int y) const {
    const show::FramePoint at =
        show::ToFramePoint({scene_.width(), scene_.height()}, fitted(), x, y);
    return model_.pointerAt(scene_.home().layout(), at.X, at.Y, now());
}

void PlayerWindow::paint() {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(window_, &ps);
    RECT area;
    GetClientRect(window_, &area);
    if (!frame_)
        frame_ = std::make_unique<Gdiplus::Bitmap>(scene_.width(), scene_.height(),
                                                   PixelFormat32bppPARGB);
    {
        Gdiplus::Graphics g(frame_.get());
        scene_.paint(g, model_.at(now()), model_.hoverIcon());
    }
    // Drawn off screen first so that a fade step never flickers.
    HDC memory = CreateCompatibleDC(dc);
    HBITMAP buffer = CreateCompatibleBitmap(dc, area.right, area.bottom);
    HGDIOBJ old = SelectObject(memory, buffer);
    {
        Gdiplus::Graphics g(memory);
        Gdiplus::SolidBrush back(scene_.backColor());
        g.FillRectangle(&back, 0, 0, INT(area.right), INT(area.bottom));
        g.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
        g.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
        const show::IconRect f = fitted();
        g.DrawImage(frame_.get(), Gdiplus::Rect(f.Left, f.Top, f.Right - f.Left, f.Bottom - f.Top));
    }
    BitBlt(dc, 0, 0, area.right, area.bottom, memory, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    DeleteObject(buffer);
    DeleteDC(memory);
    EndPaint(window_, &ps);
}

} // namespace winplayer
