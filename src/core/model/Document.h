#pragma once

#include "model/DirtyFlag.h"
#include "model/Records.h"

#include <QString>

#include <array>

namespace zentor {

inline constexpr int MaxTab = 8;     // tabs 0..8
inline constexpr int MaxImages = 32; // image slots 1..32, slot 0 is the template
inline constexpr int MaxTexts = 128; // text slots 1..128, slot 0 is the template

// Tab records: 0 the profile page (its record only carries "Slide Show"), 1..7 the
// content pages, 8 the slide show.
inline constexpr int ProfileTab = 0;
inline constexpr int SlideShowTab = 8;

// The one open document: plain data in fixed tables, exactly what the project file holds.
struct Document {
    ScriptHeader Header;
    ProfileRecord Profile;
    std::array<TabRecord, MaxTab + 1> Tabs;
    std::array<ImageElement, MaxImages + 1> Images;
    std::array<TextElement, MaxTexts + 1> Texts;
    QString ScriptPath; // the project file last saved or opened; empty for a new document
    DirtyFlag Dirty;
};

// An object slot is in use when its TabNo is 1 or more.
inline bool inUse(const ImageElement& e) {
    return e.TabNo >= 1;
}
inline bool inUse(const TextElement& e) {
    return e.TabNo >= 1;
}

} // namespace zentor
