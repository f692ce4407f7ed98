#include "edit/TabNavigation.h"

#include "model/TabMap.h"

namespace zentor {

int PrevStrip(int strip) {
    if (strip == 1)
        strip = StripCount + 1;
    return strip - 1;
}

int NextStrip(int strip) {
    if (strip == StripCount)
        strip = 0;
    return strip + 1;
}

int GetSelectedIndex(int selectedStrip, int oldCurrentTab) {
    return StripToTab(selectedStrip != 0 ? selectedStrip : oldCurrentTab);
}

} // namespace zentor
