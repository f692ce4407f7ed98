#include "show/HomeLayout.h"

#include <gtest/gtest.h>

using namespace zentor::show;

namespace {

TEST(HomeLayoutTest, ContactLinks) {
    struct Case {
        ContactKind kind;
        const char* text;
        const char* link;
    } cases[] = {
        {ContactKind::Email, "ann@example.org", "mailto:ann@example.org"},
        {ContactKind::Email, " mailto:ann@example.org ", "mailto:ann@example.org"},
        {ContactKind::Website, "www.example.org", "http://www.example.org"},
        {ContactKind::Website, "example.org/cv", "http://example.org/cv"},
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

    // Five lines stay clear of every ring icon and below the caption (ends at H/2 + 104).
    p.Email = "a@b.c";
    p.Address = "x";
    const HomeLayout full = LayoutHome(p, 800, 600);
    ASSERT_EQ(full.Lines.size(), 5u);
    EXPECT_GE(full.Block.Top, 300 + 104);
    const IconRectTable ring = RingRects(800, 600);
    for (int i = 1; i <= 8; ++i) {
        const IconRect& r = ring[size_t(i)];
        const bool apart = r.Right <= full.Block.Left || r.Left >= full.Block.Right ||
                           r.Bottom <= full.Block.Top || r.Top >= full.Block.Bottom;
        EXPECT_TRUE(apart) << i;
    }
    EXPECT_TRUE(LayoutHome(ShowProfile{}, 800, 600).Lines.empty());
}

TEST(HomeLayoutTest, OnlyLinkLinesAreHit) {
    ShowProfile p;
    p.Phone = "0123";
    p.Email = "a@b.c";
    const HomeLayout home = LayoutHome(p, 800, 600);
    struct Case {
        int x, y, line;
    } cases[] = {{400, 415, -1}, {400, 430, 1},  {270, 427, 1}, {269, 430, -1},
                 {529, 443, 1},  {530, 430, -1}, {400, 444, -1}};
    for (const Case& c : cases)
        EXPECT_EQ(LinkAt(home, c.x, c.y), c.line) << c.x << "," << c.y;
}

} // namespace
