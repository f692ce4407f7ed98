#pragma once

#include "PackageData.h"
#include "Ring.h"

#include <string>
#include <vector>

namespace zentor::show {

// The contact details the home page shows, in this order; an empty field takes no line.
enum class ContactKind { Phone, Email, Website, Address, PostCode };

// One shown line: its text (the profile's bytes, trimmed), where a click on it goes
// (empty when nowhere) and the rectangle it is drawn in, centred and cut with an ellipsis
// when it does not fit.
struct HomeLine {
    ContactKind Kind = ContactKind::Phone;
    std::string Text;
    std::string Link;
    IconRect Rect;
};

// What the home page shows that takes the pointer: the ring of icons, and the contact
// details in a block inside the ring, under the name caption, clear of the icons. Both
// players draw and hit-test from this alone.
struct HomeLayout {
    IconRectTable Ring{};
    IconRect Block;              // the lines' union (empty when there are none)
    std::vector<HomeLine> Lines; // top to bottom
    int FontPoints = 10;         // "Arial" at 96 dpi, white with a shadow like the caption
};

inline constexpr int HomeLineHeight = 17;
inline constexpr int HomeBlockWidth = 260;
inline constexpr int HomeBlockGap = 110; // the block's top below the frame's centre

// Where a click on a contact goes: an e-mail address gets "mailto:", a web site without a
// scheme gets "http://"; the other fields link nowhere.
std::string ContactLink(ContactKind kind, const std::string& text);

HomeLayout LayoutHome(const ShowProfile& profile, int frameWidth, int frameHeight);

// The line under a point that links somewhere, -1 for none.
int LinkAt(const HomeLayout& layout, int x, int y);

} // namespace zentor::show
