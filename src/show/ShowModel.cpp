#include "ShowModel.h"

#include "Ring.h"

#include <algorithm>
#include <cstdlib>

namespace zentor::show {

ShowSettings ShowSettingsOf(const ShowHeader& h) {
    ShowSettings s;
    s.HoldMs = std::clamp(h.KeepOnTime, MinHoldMs, MaxHoldMs);
    s.FadeMs = std::clamp(h.ShowSpeed, 0, MaxShowSpeed) * FadeMsPerSpeed;
    s.AutoRun = h.ShowAsRun == 1;
    return s;
}

MusicSettings MusicSettingsOf(const ShowHeader& h, bool present) {
    MusicSettings m;
    m.Present = present;
    m.Volume = std::clamp(h.MusicVolume, 0, 1000) / 1000.0;
    m.Loop = h.AutoRepeat == 1;
    return m;
}

MusicSettings MusicSettingsOf(const PackageInfo& p) {
    const bool present = p.Entries[size_t(Package::MusicEntry)].Kind == PackMusic &&
                         p.usable(Package::MusicEntry) && p.range(Package::MusicEntry).Length > 0;
    return MusicSettingsOf(p.Header, present);
}

std::vector<int> ShowOrder(const std::array<bool, Package::EntryCount>& empty) {
    std::vector<int> order;
    for (int entry : PageOrder)
        if (!empty[size_t(entry)])
            order.push_back(entry);
    return order;
}

bool IsFlatPicture(const uint32_t* pixels, int width, int height, int stride, int tolerance) {
    if (!pixels || width <= 0 || height <= 0)
        return false;
    const uint32_t first = pixels[0];
    const auto near = [tolerance](uint32_t a, uint32_t b, int shift) {
        return std::abs(int((a >> shift) & 0xFF) - int((b >> shift) & 0xFF)) <= tolerance;
    };
    for (int y = 0; y < height; ++y) {
        const uint32_t* row = pixels + size_t(y) * size_t(stride);
        for (int x = 0; x < width; ++x)
            if (!near(row[x], first, 0) || !near(row[x], first, 8) || !near(row[x], first, 16))
                return false;
    }
    return true;
}

int ShowModel::orderIndexOf(int picture) const {
    for (size_t i = 0; i < order_.size(); ++i)
        if (order_[i] == picture)
            return int(i);
    return -1;
}

ShowModel::ShowModel(const ShowSettings& settings, int64_t openedAtMs)
    : ShowModel(settings, openedAtMs, std::vector<int>(PageOrder.begin(), PageOrder.end())) {}

ShowModel::ShowModel(const ShowSettings& settings, int64_t openedAtMs, std::vector<int> order)
    : settings_(settings), order_(std::move(order)) {
    // The opening picture is there at once, not faded in from nothing.
    stillSince_ = openedAtMs - settings_.FadeMs;
    if (settings_.AutoRun)
        runFrom(0, openedAtMs);
}

int64_t ShowModel::showClock(int64_t nowMs) const {
    return (pausedAt_ >= 0 ? pausedAt_ : nowMs) - showStart_ - pausedTotal_;
}

double ShowModel::fade(int64_t sinceMs) const {
    if (settings_.FadeMs <= 0)
        return 1.0;
    return std::clamp(double(sinceMs) / settings_.FadeMs, 0.0, 1.0);
}

bool ShowModel::running(int64_t nowMs) const {
    const int64_t length = int64_t(pageCount() - anchor_) * settings_.HoldMs;
    return running_ && showClock(nowMs) < length;
}

ScreenState ShowModel::at(int64_t nowMs) const {
    if (!running_)
        return {still_, stillPrevious_, fade(nowMs - stillSince_)};
    const int64_t elapsed = std::max<int64_t>(0, showClock(nowMs));
    const int last = pageCount() - 1;
    const int index = int(std::min<int64_t>(anchor_ + elapsed / settings_.HoldMs, last + 1));
    const int64_t within = elapsed - int64_t(index - anchor_) * settings_.HoldMs;
    const int previous = index == anchor_ ? anchorPrevious_ : order_[size_t(index - 1)];
    // After the last page the show goes back home.
    const int picture = index > last ? HomePicture : order_[size_t(index)];
    return {picture, previous, fade(within)};
}

int64_t ShowModel::nextChangeMs(int64_t nowMs) const {
    if (running(nowMs)) {
        if (paused())
            return -1;
        const int64_t within = showClock(nowMs) % settings_.HoldMs;
        return within < settings_.FadeMs ? nowMs : nowMs + (settings_.HoldMs - within);
    }
    const ScreenState s = at(nowMs);
    return s.Alpha < 1.0 ? nowMs : -1;
}

// A show that has run out becomes the home page shown still, faded in from its end.
void ShowModel::settle(int64_t nowMs) {
    if (!running_ || running(nowMs))
        return;
    const int64_t length = int64_t(pageCount() - anchor_) * settings_.HoldMs;
    still_ = HomePicture;
    stillPrevious_ = order_.empty() ? HomePicture : order_.back();
    stillSince_ = showStart_ + pausedTotal_ + length;
    running_ = false;
    pausedAt_ = -1;
}

void ShowModel::showStill(int picture, int64_t nowMs) {
    const ScreenState now = at(nowMs);
    hover_ = 0; // the home page leaves or comes back with the person's name
    running_ = false;
    pausedAt_ = -1;
    if (now.Picture == picture && now.Alpha >= 1.0)
        return;
    stillPrevious_ = now.Picture;
    still_ = picture;
    stillSince_ = nowMs;
}

// Runs the show from page `index` of the order; a paused show resumes.
void ShowModel::runFrom(int index, int64_t nowMs) {
    const ScreenState now = at(nowMs);
    hover_ = 0;
    running_ = true;
    anchor_ = index;
    anchorPrevious_ = now.Picture;
    showStart_ = nowMs;
    pausedTotal_ = 0;
    pausedAt_ = -1;
}

void ShowModel::step(int delta, int64_t nowMs) {
    const bool wasRunning = running_;
    const int next = orderIndexOf(at(nowMs).Picture) + delta;
    const int count = pageCount();
    if (wasRunning) {
        if (next < 0 || next >= count)
            showStill(HomePicture, nowMs);
        else
            runFrom(next, nowMs);
        return;
    }
    // Still pictures page round through the home page: home, first .. last, home.
    if (next < -1 && count > 0)
        showStill(order_.back(), nowMs);
    else if (next < 0 || next >= count)
        showStill(HomePicture, nowMs);
    else
        showStill(order_[size_t(next)], nowMs);
}

ShowReaction ShowModel::key(ShowKey k, int64_t nowMs) {
    settle(nowMs);
    switch (k) {
    case ShowKey::Escape:
        if (!running_ && at(nowMs).Picture == HomePicture)
            return ShowReaction::Quit;
        showStill(HomePicture, nowMs);
        return ShowReaction::Redraw;
    case ShowKey::Left:
    case ShowKey::Up:
    case ShowKey::PageUp:
        step(-1, nowMs);
        return ShowReaction::Redraw;
    case ShowKey::Right:
    case ShowKey::Down:
    case ShowKey::PageDown:
        step(1, nowMs);
        return ShowReaction::Redraw;
    case ShowKey::Space:
        if (!running_)
            return ShowReaction::None;
        if (pausedAt_ >= 0) {
            pausedTotal_ += nowMs - pausedAt_;
            pausedAt_ = -1;
        } else {
            pausedAt_ = nowMs;
        }
        return ShowReaction::Redraw;
    case ShowKey::F5:
        runFrom(0, nowMs);
        return ShowReaction::Redraw;
    case ShowKey::M:
        muted_ = !muted_;
        return ShowReaction::Redraw;
    }
    return ShowReaction::None;
}

ShowReaction ShowModel::clickIcon(int icon, int64_t nowMs) {
    settle(nowMs);
    if (!takesPointer(nowMs))
        return ShowReaction::None;
    if (icon == SlideShowIcon) {
        runFrom(0, nowMs);
        return ShowReaction::Redraw;
    }
    if (icon < 1 || icon > 7)
        return ShowReaction::None;
    showStill(PageEntryOfTab(icon), nowMs);
    return ShowReaction::Redraw;
}

bool ShowModel::takesPointer(int64_t nowMs) const {
    // A running show has pages on screen until it has run out.
    const ScreenState s = at(nowMs);
    return s.Picture == HomePicture && s.Alpha >= 1.0;
}

PointerTarget ShowModel::pointerAt(const HomeLayout& home, int x, int y, int64_t nowMs) const {
    PointerTarget target;
    if (!takesPointer(nowMs))
        return target;
    const int icon = IconAt(home.Ring, x, y);
    if (icon >= 1) {
        target.Icon = icon;
        return target;
    }
    target.Line = LinkAt(home, x, y);
    if (target.Line >= 0)
        target.Link = home.Lines[size_t(target.Line)].Link;
    return target;
}

ShowReaction ShowModel::hover(const PointerTarget& target) {
    if (target.Icon == hover_)
        return ShowReaction::None;
    hover_ = target.Icon;
    return ShowReaction::Redraw;
}

ShowReaction ShowModel::click(const PointerTarget& target, int64_t nowMs) {
    if (target.Icon >= 1)
        return clickIcon(target.Icon, nowMs);
    if (target.Line >= 0 && !target.Link.empty() && takesPointer(nowMs))
        return ShowReaction::OpenLink;
    return ShowReaction::None;
}

} // namespace zentor::show
