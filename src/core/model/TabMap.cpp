#include "model/TabMap.h"

namespace zentor {

int GetTabIndex(int iArrTab) {
    static constexpr int strip[MaxTab + 1] = {1, 8, 7, 6, 5, 4, 3, 2, 9};
    if (iArrTab < 0 || iArrTab > MaxTab)
        return 0;
    return strip[iArrTab];
}

int StripToTab(int strip) {
    if (strip == 1)
        return 0;
    if (strip >= 2 && strip <= 8)
        return 9 - strip;
    if (strip == 9)
        return 8;
    return strip;
}

int GetArrNo(const Document& doc, int iType) {
    if (iType == 1) {
        for (int i = 1; i <= MaxImages; ++i)
            if (doc.Images[i].TabNo == 0)
                return i;
    } else if (iType == 2) {
        for (int i = 1; i <= MaxTexts; ++i)
            if (doc.Texts[i].TabNo == 0)
                return i;
    }
    return 0;
}

} // namespace zentor
