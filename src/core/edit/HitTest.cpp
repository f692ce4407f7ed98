#include "edit/HitTest.h"

#include <cmath>

namespace zentor {

namespace {

template <typename Element> bool Hit(const Element& e, int tab, double x, double y) {
    return e.TabNo == tab && e.Left <= x && x <= double(e.Left) + e.Width && e.Top <= y &&
           y <= double(e.Top) + e.Height;
}

// Examines slots U-1 down to 0 (never U) and returns the list row of the first hit that
// has one, or -1.
template <typename Table>
int FirstHitRow(const Table& table, int kind, const std::array<ObjectRef, ObjectMapRows>& map,
                int tab, double x, double y) {
    const int upper = int(table.size()) - 1;
    for (int i = 1; i <= upper; ++i) {
        const int s = upper - i;
        if (!Hit(table[s], tab, x, y))
            continue;
        const int row = FindObjectRow(map, {kind, s});
        if (row >= 0)
            return row;
    }
    return -1;
}

} // namespace

int SelectByMouse(const Document& doc, const std::array<ObjectRef, ObjectMapRows>& map,
                  int currentTab, double x, double y) {
    if (currentTab < 1 || currentTab > 7)
        return -1;
    int row = FirstHitRow(doc.Texts, KindText, map, currentTab, x, y);
    if (row < 0)
        row = FirstHitRow(doc.Images, KindImage, map, currentTab, x, y);
    return row < 0 ? 0 : row;
}

int HoverIconAt(const IconRectTable& rects, double x, double y) {
    for (int i = 1; i <= 8; ++i) {
        const IconRect& r = rects[i];
        if (r.Left < x && x < r.Right && r.Top < y && y < r.Bottom)
            return i;
    }
    return 0;
}

} // namespace zentor
