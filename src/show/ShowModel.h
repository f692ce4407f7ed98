#pragma once

#include "HomeLayout.h"
#include "PackageData.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zentor::show {

// The numbers the slide show runs by, decided once from the header.
struct ShowSettings {
    int HoldMs = 7000;   // each page's slot: KeepOnTime held to 1 s .. 10 min
    int FadeMs = 500;    // a picture's fade-in: ShowSpeed 0..40 times 25 ms (0 .. 1 s)
    bool AutoRun = true; // ShowAsRun 1
};

struct MusicSettings {
    bool Present = false; // entry 10 holds bytes
    double Volume = 0.5;  // MusicVolume / 1000, held to 0..1
    bool Loop = true;     // AutoRepeat 1
};

inline constexpr int MinHoldMs = 1000;
inline constexpr int MaxHoldMs = 600000;
inline constexpr int FadeMsPerSpeed = 25;
inline constexpr int MaxShowSpeed = 40;

ShowSettings ShowSettingsOf(const ShowHeader& h);
MusicSettings MusicSettingsOf(const PackageInfo& p);
MusicSettings MusicSettingsOf(const ShowHeader& h, bool present);

// What can be on screen: the home page or a page picture, named by its package entry.
inline constexpr int HomePicture = -1;

// The slide show's pages as package entries, in the editor's strip order: tabs 7 .. 1, then
// the slide-show page (tab 8).
inline constexpr std::array<int, Package::PageCount> PageOrder = {17, 16, 15, 14, 13, 12, 11, 18};

// The show's pages: PageOrder without the pages that hold nothing (`empty` by package
// entry, 11..18), which the show and paging pass over.
std::vector<int> ShowOrder(const std::array<bool, Package::EntryCount>& empty);

// Whether a decoded picture (32-bit pixels, 0xAARRGGBB, `stride` pixels a row) is one flat
// colour, each channel within `tolerance` of the first pixel: a page that holds nothing.
// JPEG leaves a little noise even on a flat page; text and pictures leave far more.
inline constexpr int FlatTolerance = 8;
bool IsFlatPicture(const uint32_t* pixels, int width, int height, int stride,
                   int tolerance = FlatTolerance);

// The package entry of a tab's page (1..8).
inline constexpr int PageEntryOfTab(int tab) {
    return Package::FirstPageEntry + tab - 1;
}

// What the window shows at one moment: Picture drawn with Alpha (0..1) over Previous.
struct ScreenState {
    int Picture = HomePicture;
    int Previous = HomePicture;
    double Alpha = 1.0;
    bool operator==(const ScreenState& o) const {
        return Picture == o.Picture && Previous == o.Previous && Alpha == o.Alpha;
    }
};

enum class ShowKey { Escape, Left, Right, Up, Down, PageUp, PageDown, Space, F5, M };

// What the window has to do after an input.
enum class ShowReaction { None, Redraw, Quit, OpenLink };

// What lies under the pointer on the home page: a ring icon, else a contact line that
// links somewhere, else nothing.
struct PointerTarget {
    int Icon = 0;     // 1..8
    int Line = -1;    // into HomeLayout::Lines
    std::string Link; // where that line goes
    bool hand() const { return Icon >= 1 || Line >= 0; }
};

// The player's behaviour as a function of time (ms on any steady clock the caller chooses)
// and of the recipient's input. Time never runs backwards between calls.
class ShowModel {
public:
    ShowModel(const ShowSettings& settings, int64_t openedAtMs);
    // A show of the given pages (package entries, in order) instead of all of PageOrder.
    ShowModel(const ShowSettings& settings, int64_t openedAtMs, std::vector<int> order);

    ScreenState at(int64_t nowMs) const;
    bool running(int64_t nowMs) const; // the slide show is on, paused or not
    bool paused() const { return running_ && pausedAt_ >= 0; }
    bool muted() const { return muted_; }
    // When the picture next changes or a fade is under way: the caller redraws then.
    // -1 when nothing will change without input.
    int64_t nextChangeMs(int64_t nowMs) const;

    ShowReaction key(ShowKey k, int64_t nowMs);
    // A click on the home page's ring: icon 1..7 shows that tab's page, the slide-show icon
    // starts the show. Ignored unless the home page takes the pointer.
    ShowReaction clickIcon(int icon, int64_t nowMs);

    // The home page takes clicks and hover only once it is on screen, faded in: a click
    // never opens what the recipient cannot see yet.
    bool takesPointer(int64_t nowMs) const;
    // What is under the pointer at (x, y) of the frame; nothing unless takesPointer.
    PointerTarget pointerAt(const HomeLayout& home, int x, int y, int64_t nowMs) const;
    // The pointer is over `target`: a ring icon's name becomes the home page's caption.
    // Redraw when the caption changes.
    ShowReaction hover(const PointerTarget& target);
    // The ring icon whose name the caption shows, 0 for the person's name.
    int hoverIcon() const { return hover_; }
    // A click on `target`: a ring icon as clickIcon; a contact line gives OpenLink, and the
    // window opens target.Link with the recipient's mail program or browser.
    ShowReaction click(const PointerTarget& target, int64_t nowMs);

    const ShowSettings& settings() const { return settings_; }

private:
    int64_t showClock(int64_t nowMs) const;
    double fade(int64_t sinceMs) const;
    void settle(int64_t nowMs);
    void showStill(int picture, int64_t nowMs);
    void runFrom(int index, int64_t nowMs);
    void step(int delta, int64_t nowMs);
    int pageCount() const { return int(order_.size()); }
    int orderIndexOf(int picture) const;

    ShowSettings settings_;
    std::vector<int> order_;
    // Shown without the show running.
    int still_ = HomePicture;
    int stillPrevious_ = HomePicture;
    int64_t stillSince_ = 0;
    // The running show: page `anchor_` begins at show time 0 over `anchorPrevious_`.
    bool running_ = false;
    int anchor_ = 0;
    int anchorPrevious_ = HomePicture;
    int64_t showStart_ = 0;
    int64_t pausedTotal_ = 0;
    int64_t pausedAt_ = -1;
    bool muted_ = false;
    int hover_ = 0;
};

} // namespace zentor::show
