#include "model/EmptyPages.h"

#include <algorithm>

namespace zentor {

bool PageHoldsNothing(const Document& doc, int tab) {
    if (tab <= ProfileTab || tab >= SlideShowTab)
        return false;
    if (!doc.Tabs[size_t(tab)].Picture.FileName.trimNull().isEmpty())
        return false;
    // Slot 0 is the template for new objects, never on a page.
    const auto onTab = [tab](const auto& e) { return e.TabNo == tab; };
    return std::none_of(doc.Images.begin() + 1, doc.Images.end(), onTab) &&
           std::none_of(doc.Texts.begin() + 1, doc.Texts.end(), onTab);
}

QList<int> EmptyPages(const Document& doc) {
    QList<int> tabs;
    for (int tab = ProfileTab + 1; tab < SlideShowTab; ++tab)
        if (PageHoldsNothing(doc, tab))
            tabs.append(tab);
    return tabs;
}

} // namespace zentor
