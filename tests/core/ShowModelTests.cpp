#include "show/HomeLayout.h"
#include "show/Ring.h"
#include "show/ShowFrame.h"
#include "show/ShowModel.h"

#include <gtest/gtest.h>

#include <vector>

using namespace zentor::show;

namespace {

constexpr int Home = HomePicture;

ShowHeader header(int speed, int asRun, int keep) {
    ShowHeader h;
    h.ShowSpeed = speed;
    h.ShowAsRun = asRun;
    h.KeepOnTime = keep;
    h.MusicVolume = 500;
    h.AutoRepeat = 1;
    return h;
}

TEST(ShowSettingsTest, HoldFadeAndMusicFollowTheHeaderWithinTheirRanges) {
    struct Case {
        int speed, keep, hold, fade;
    } cases[] = {
        {0, 7000, 7000, 0},    {10, 7000, 7000, 250},     {20, 7000, 7000, 500},
        {30, 7000, 7000, 750}, {40, 7000, 7000, 1000},    {90, 999, 1000, 1000},
        {-5, 0, 1000, 0},      {20, 600001, 600000, 500}, {20, -1, 1000, 500},
    };
    for (const Case& c : cases) {
        const ShowSettings s = ShowSettingsOf(header(c.speed, 1, c.keep));
        EXPECT_EQ(s.HoldMs, c.hold) << c.keep;
        EXPECT_EQ(s.FadeMs, c.fade) << c.speed;
    }
    EXPECT_TRUE(ShowSettingsOf(header(20, 1, 7000)).AutoRun);
    EXPECT_FALSE(ShowSettingsOf(header(20, 0, 7000)).AutoRun);
    EXPECT_FALSE(ShowSettingsOf(header(20, 2, 7000)).AutoRun);

    // The music: its volume within range, looped when the header repeats.
    struct Music {
        int volume, repeat;
        double expectVolume;
        bool loop;
    } music[] = {{500, 1, 0.5, true},
                 {0, 0, 0.0, false},
                 {1000, 2, 1.0, false},
                 {4000, 1, 1.0, true},
                 {-3, 1, 0.0, true}};
    for (const Music& c : music) {
        ShowHeader h;
        h.MusicVolume = c.volume;
        h.AutoRepeat = c.repeat;
        const MusicSettings m = MusicSettingsOf(h, true);
        EXPECT_DOUBLE_EQ(m.Volume, c.expectVolume) << c.volume;
        EXPECT_EQ(m.Loop, c.loop) << c.repeat;
    }
}

// What shows at time t of a show opened at 0 with no input.
TEST(ShowModelTest, TimelineWithoutInput) {
    struct Case {
        int asRun, keep, speed;
        int64_t t;
        ScreenState expect;
    } cases[] = {
        // Runs at once: the first page fades in over the home page.
        {1, 7000, 20, 0, {17, Home, 0.0}},
        {1, 7000, 20, 250, {17, Home, 0.5}},
        {1, 7000, 20, 500, {17, Home, 1.0}},
        {1, 7000, 20, 6999, {17, Home, 1.0}},
        {1, 7000, 20, 7000, {16, 17, 0.0}},
        {1, 7000, 20, 6 * 7000 + 100, {11, 12, 0.2}},
        {1, 7000, 20, 7 * 7000 + 600, {18, 11, 1.0}},
        // After the last page: home.
        {1, 7000, 20, 8 * 7000 + 250, {Home, 18, 0.5}},
        {1, 7000, 20, 100 * 7000, {Home, 18, 1.0}},
        // Held to the shortest and longest holding times.
        {1, 10, 0, 1000, {16, 17, 1.0}},
        {1, 10, 0, 999, {17, Home, 1.0}},
        {1, 50000000, 0, 600000, {16, 17, 1.0}},
        // Not running: home, whatever the time.
        {0, 7000, 20, 0, {Home, Home, 1.0}},
        {0, 7000, 20, 60000, {Home, Home, 1.0}},
    };
    for (const Case& c : cases) {
        const ShowModel m(ShowSettingsOf(header(c.speed, c.asRun, c.keep)), 0);
        EXPECT_EQ(m.at(c.t), c.expect) << "asRun " << c.asRun << " keep " << c.keep << " t " << c.t;
    }
    // The opening time is the show's zero.
    const ShowModel late(ShowSettingsOf(header(0, 1, 2000)), 123456);
    EXPECT_EQ(late.at(123456 + 2000).Picture, 16);
    EXPECT_TRUE(late.running(123456 + 15999));
    EXPECT_FALSE(late.running(123456 + 16000));
}

struct Input {
    int64_t t;
    enum { Key, Click } kind;
    ShowKey key;
    int icon;
};

Input key(int64_t t, ShowKey k) {
    return {t, Input::Key, k, 0};
}
Input click(int64_t t, int icon) {
    return {t, Input::Click, ShowKey::M, icon};
}
using K = ShowKey;

void Apply(ShowModel& m, const std::vector<Input>& inputs) {
    for (const Input& in : inputs)
        in.kind == Input::Key ? m.key(in.key, in.t) : m.clickIcon(in.icon, in.t);
}

// Inputs on a fake clock, then what is on screen (the fade over, speed 0).
TEST(ShowModelTest, InputMovesTheShow) {
    struct Case {
        const char* name;
        int asRun;
        std::vector<Input> inputs;
        int64_t t;
        int picture;
        bool running;
    } cases[] = {
        {"ring icon 1 shows the Overview", 0, {click(10, 1)}, 20, 11, false},
        {"ring icon 7 shows Personal", 0, {click(10, 7)}, 20, 17, false},
        {"the centre does nothing", 0, {click(10, 0)}, 20, Home, false},
        {"slide-show icon starts the show", 0, {click(10, 8)}, 10 + 2000, 16, true},
        {"icons are not there during the show", 1, {click(10, 1)}, 20, 17, true},
        {"Escape on a page: home", 0, {click(10, 2), key(20, K::Escape)}, 30, Home, false},
        {"Escape during the show: home", 1, {key(3000, K::Escape)}, 9000, Home, false},
        {"Right from home: first page", 0, {key(10, K::Right)}, 20, 17, false},
        {"PgDn twice", 0, {key(10, K::PageDown), key(20, K::PageDown)}, 30, 16, false},
        {"Left from home: the slide-show page", 0, {key(10, K::Left)}, 20, 18, false},
        {"Up from the first page: home", 0, {click(10, 7), key(20, K::Up)}, 30, Home, false},
        {"Down past the last page: home",
         0,
         {click(10, 1), key(20, K::Down), key(30, K::Down)},
         40,
         Home,
         false},
        {"Right in the show skips on", 1, {key(500, K::Right)}, 500 + 1999, 16, true},
        {"and keeps time from there", 1, {key(500, K::Right)}, 500 + 2000, 15, true},
        {"PgUp on the show's first page: home", 1, {key(500, K::PageUp)}, 600, Home, false},
        {"F5 starts at the first page", 0, {click(10, 4), key(20, K::F5)}, 30, 17, true},
        {"F5 restarts a running show", 1, {key(5000, K::F5)}, 5000 + 2000 - 1, 17, true},
        {"Space pauses", 1, {key(1000, K::Space)}, 50000, 17, true},
        {"Space resumes", 1, {key(1000, K::Space), key(11000, K::Space)}, 11999, 17, true},
        {"late by the pause", 1, {key(1000, K::Space), key(11000, K::Space)}, 12000, 16, true},
        {"Space does nothing at home", 0, {key(10, K::Space)}, 5000, Home, false},
        {"after the show, icons work again", 1, {click(16000, 2)}, 16010, 12, false},
    };
    for (const Case& c : cases) {
        ShowModel m(ShowSettingsOf(header(0, c.asRun, 2000)), 0);
        Apply(m, c.inputs);
        EXPECT_EQ(m.at(c.t).Picture, c.picture) << c.name;
        EXPECT_EQ(m.running(c.t), c.running) << c.name;
    }
}

// Pages that hold nothing are left out of the show and of paging.
TEST(ShowModelTest, EmptyPagesArePassedOver) {
    std::array<bool, Package::EntryCount> empty{};
    for (int entry : {16, 14, 13, 12, 11})
        empty[size_t(entry)] = true;
    const std::vector<int> order = ShowOrder(empty);
    ASSERT_EQ(order, (std::vector<int>{17, 15, 18}));
    struct Case {
        int asRun;
        std::vector<Input> inputs;
        int64_t t;
        int picture;
    } cases[] = {
        {1, {}, 1500, 17},
        {1, {}, 7500, 15},
        {1, {}, 14500, 18},
        {1, {}, 21500, Home},
        {0, {key(10, ShowKey::Left)}, 20, 18},
        {0, {key(10, ShowKey::Right), key(20, ShowKey::Right)}, 30, 15},
        {0, {click(10, 8), key(20, ShowKey::PageDown)}, 7020, 18},
        {0, {click(10, 4), key(20, ShowKey::Right)}, 30, 17}, // a clicked empty page shows
    };
    for (const Case& c : cases) {
        ShowModel m(ShowSettingsOf(header(0, c.asRun, 7000)), 0, order);
        Apply(m, c.inputs);
        EXPECT_EQ(m.at(c.t).Picture, c.picture) << c.t;
    }
    // Nothing to show: the show ends at once.
    const ShowModel none(ShowSettingsOf(header(0, 1, 7000)), 0, {});
    EXPECT_EQ(none.at(100).Picture, Home);
}

TEST(ShowModelTest, FlatPicturesAreEmptyPages) {
    const uint32_t white = 0xFFFFFFFFu;
    struct Case {
        std::vector<uint32_t> pixels; // 3 x 2, a stride of 4 (the last of a row is padding)
        bool flat;
    } cases[] = {
        {{white, white, white, 0, white, white, white, 0}, true},
        {{white, 0xFFF8F9FAu, white, 0, 0xFFFAF7FFu, white, white, 0}, true}, // JPEG noise
        {{white, white, white, 0, white, white, 0xFFF0FFFFu, 0}, false},
        {{0xFF102030u, 0xFF102030u, 0xFF102030u, 0, 0xFF102030u, 0xFF10202Au, 0xFF102030u, 0},
         true},
        {{0xFF102030u, 0xFF102030u, 0xFF102030u, 0, 0xFF102030u, 0xFF102030u, 0xFF102055u, 0},
         false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(IsFlatPicture(c.pixels.data(), 3, 2, 4), c.flat);
    EXPECT_FALSE(IsFlatPicture(nullptr, 3, 2, 4));
}

// A change fades from what was on screen at that moment, and asks for frames while it does.
TEST(ShowModelTest, ChangesFadeFromWhatWasShownMTogglesMuteAndEscapeQuits) {
    ShowModel m(ShowSettingsOf(header(40, 0, 7000)), 0);
    EXPECT_EQ(m.nextChangeMs(5), -1);
    m.clickIcon(3, 100);
    EXPECT_EQ(m.at(600), (ScreenState{13, Home, 0.5}));
    EXPECT_EQ(m.nextChangeMs(600), 600);
    EXPECT_EQ(m.nextChangeMs(1100), -1);
    m.key(ShowKey::F5, 2000);
    EXPECT_EQ(m.at(2000), (ScreenState{17, 13, 0.0}));
    EXPECT_EQ(m.nextChangeMs(3500), 2000 + 7000);

    // M toggles the music; Escape on the home page quits.
    ShowModel home(ShowSettingsOf(header(20, 0, 7000)), 0);
    EXPECT_EQ(home.key(ShowKey::M, 10), ShowReaction::Redraw);
    EXPECT_TRUE(home.muted());
    home.key(ShowKey::M, 20);
    EXPECT_FALSE(home.muted());
    EXPECT_EQ(home.key(ShowKey::Escape, 30), ShowReaction::Quit);
}

// The home page takes the pointer only once it has faded in, and never during the show.
TEST(ShowModelTest, PointerOnTheHomePage) {
    ShowProfile profile;
    profile.Phone = "0123";
    profile.Email = "a@b.c";
    const HomeLayout home = LayoutHome(profile, 800, 600);
    // Fades of a second: page 13 from 0, home again from 2000 to 3000.
    ShowModel m(ShowSettingsOf(header(40, 0, 7000)), -5000);
    m.clickIcon(3, 0);
    m.key(ShowKey::Escape, 2000);
    struct Case {
        int x, y;
        int64_t t;
        int icon, line;
    } cases[] = {
        {650, 300, 2999, 0, -1}, {400, 430, 2999, 0, -1}, // fading in
        {650, 300, 3000, 1, -1}, {400, 550, 3000, 3, -1},
        {690, 300, 3000, 0, -1}, // an icon's right and bottom edges lie outside it
        {400, 430, 3000, 0, 1},  {400, 415, 3000, 0, -1}, // the phone links nowhere
        {400, 300, 3000, 0, -1},                          // nor does the centre picture
        {270, 427, 3000, 0, 1},  {269, 430, 3000, 0, -1}, // the e-mail line's edges
        {529, 443, 3000, 0, 1},  {530, 430, 3000, 0, -1},
        {400, 444, 3000, 0, -1}, {-1, -1, 3000, 0, -1},
    };
    for (const Case& c : cases) {
        const PointerTarget target = m.pointerAt(home, c.x, c.y, c.t);
        EXPECT_EQ(target.Icon, c.icon) << c.x << "," << c.y << " at " << c.t;
        EXPECT_EQ(target.Line, c.line) << c.x << "," << c.y << " at " << c.t;
        EXPECT_EQ(target.hand(), c.icon > 0 || c.line >= 0);
    }
    EXPECT_EQ(m.pointerAt(home, 400, 430, 3000).Link, "mailto:a@b.c");

    // A click while the home page fades in does nothing; once it is there, it does.
    PointerTarget icon1;
    icon1.Icon = 1;
    EXPECT_EQ(m.click(icon1, 2999), ShowReaction::None);
    EXPECT_EQ(m.at(2999).Picture, Home);
    EXPECT_EQ(m.click(m.pointerAt(home, 400, 430, 3000), 3000), ShowReaction::OpenLink);

    // Hovering an icon names it until a change of picture.
    EXPECT_EQ(m.hover(m.pointerAt(home, 650, 300, 3000)), ShowReaction::Redraw);
    EXPECT_EQ(m.hoverIcon(), 1);
    EXPECT_EQ(m.hover(m.pointerAt(home, 651, 301, 3001)), ShowReaction::None);
    const PointerTarget link = m.pointerAt(home, 400, 430, 3001);
    EXPECT_EQ(m.click(icon1, 3002), ShowReaction::Redraw);
    EXPECT_EQ(m.at(5000).Picture, 11);
    EXPECT_EQ(m.hoverIcon(), 0);
    EXPECT_EQ(m.click(link, 5000), ShowReaction::None);
    m.key(ShowKey::Escape, 6000);
    m.hover(m.pointerAt(home, 650, 300, 8000));
    m.key(ShowKey::F5, 8001);
    EXPECT_EQ(m.hoverIcon(), 0);

    // A running show takes no pointer.
    const ShowModel running(ShowSettingsOf(header(0, 1, 7000)), 0);
    EXPECT_FALSE(running.takesPointer(100));
    EXPECT_EQ(running.pointerAt(home, 650, 300, 100).Icon, 0);
}

// The frame fitted into a window of another shape, and the window's pixels mapped back.
TEST(ShowFrameTest, FitAndMapBack) {
    struct Fit {
        int w, h;
        IconRect expect;
    } fits[] = {
        {800, 600, {0, 0, 800, 600}},
        {1920, 1080, {240, 0, 1680, 1080}},
        {1000, 1000, {0, 125, 1000, 875}},
        {1366, 768, {171, 0, 1195, 768}},
        {0, 0, {0, 0, 0, 0}},
    };
    for (const Fit& f : fits)
        EXPECT_EQ(FitFrame({800, 600}, f.w, f.h), f.expect) << f.w << "x" << f.h;

    const IconRect fitted = FitFrame({800, 600}, 1920, 1080);
    struct Point {
        double x, y;
        int fx, fy;
    } points[] = {{240, 0, 0, 0},
                  {239.5, 10, -1, 5},
                  {1679.9, 1079.9, 799, 599},
                  {1680, 1080, 800, 600},
                  {960, 540, 400, 300}};
    for (const Point& p : points) {
        const FramePoint at = ToFramePoint({800, 600}, fitted, p.x, p.y);
        EXPECT_EQ(at.X, p.fx) << p.x;
        EXPECT_EQ(at.Y, p.fy) << p.y;
    }
}

TEST(HomeLayoutTest, ContactLinks) {
    struct Case {
        ContactKind kind;
        const char* text;
        const char* link;
    } cases[] = {
        {ContactKind::Email, "ann@example.org", "mailto:ann@example.org"},
        {ContactKind::Email, " mailto:ann@example.org ", "mailto:ann@example.org"},
        {ContactKind::Website, "www.example.org", "http://www.example.org"},
        {ContactKind::Website, "https://example.org", "https://example.org"},
        {ContactKind::Website, "HTTP://example.org", "HTTP://example.org"},
        {ContactKind::Website, "   ", ""},
        {ContactKind::Phone, "+44 1234", ""},
        {ContactKind::Address, "1 High St", ""},
        {ContactKind::PostCode, "AB1 2CD", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ContactLink(c.kind, c.text), c.link) << c.text;
}

TEST(HomeLayoutTest, FilledFieldsStackUnderTheCaptionInsideTheRing) {
    ShowProfile p;
    p.Phone = "0123";
    p.Email = "  ";
    p.Website = "www.example.org  ";
    p.PostCode = "AB1";
    const HomeLayout home = LayoutHome(p, 800, 600);
    ASSERT_EQ(home.Lines.size(), 3u);
    EXPECT_EQ(home.Lines[0].Kind, ContactKind::Phone);
    EXPECT_EQ(home.Lines[1].Kind, ContactKind::Website);
    EXPECT_EQ(home.Lines[1].Text, "www.example.org");
    EXPECT_EQ(home.Lines[2].Kind, ContactKind::PostCode);
    EXPECT_EQ(home.Lines[0].Rect, (IconRect{270, 410, 530, 427}));
    EXPECT_EQ(home.Lines[2].Rect, (IconRect{270, 444, 530, 461}));
    EXPECT_EQ(home.Block, (IconRect{270, 410, 530, 461}));
    // Five lines still end above the lowest ring icon (its top at 510).
    p.Email = "a@b.c";
    p.Address = "x";
    EXPECT_EQ(LayoutHome(p, 800, 600).Block, (IconRect{270, 410, 530, 495}));
    EXPECT_TRUE(LayoutHome(ShowProfile{}, 800, 600).Lines.empty());
}

} // namespace
