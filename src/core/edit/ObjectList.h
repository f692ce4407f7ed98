#pragma once

#include "model/Document.h"

#include <QStringList>

#include <array>

namespace zentor {

// What can be selected; the values are the kind column of the object list.
enum ObjectKind : int {
    KindTab = 0,       // the current content page itself
    KindImage = 1,     // an ImageElement in Images
    KindText = 2,      // a TextElement in Texts
    KindProfile = 3,   // the profile page (tab 0)
    KindSlideShow = 4, // the slide-show page (tab 8)
};

// One row of the object list: what it selects.
struct ObjectRef {
    int kind = 0;
    int slot = 0;
    friend bool operator==(const ObjectRef&, const ObjectRef&) = default;
};

inline constexpr int ObjectMapRows = 129; // rows 0..128

// The object list of one page: the rows the list box shows and, for rows 0..128, what
// each selects. Rows that no object fills keep (0, 0). A page can list more rows than the
// map holds (32 images and 128 texts); rows past 128 show but select nothing.
struct ObjectList {
    QStringList rows;
    std::array<ObjectRef, ObjectMapRows> map{};
};

// The rows of page `tab`: row 0 the page ("Tab - " + the 32-character name as stored,
// blanks kept; "Profile "; "Slide Show"), then the page's images, then its texts, each in
// slot order ("Image - " / "Text - " + 32-character name). Any other tab gives no rows.
ObjectList BuildObjectList(const Document& doc, int tab);

// First row r in 1..128 of `map` equal to `ref`; -1 when none.
int FindObjectRow(const std::array<ObjectRef, ObjectMapRows>& map, ObjectRef ref);

} // namespace zentor
