#include "edit/ObjectList.h"

namespace zentor {

namespace {

// The whole fixed-length field as the list shows it: blanks kept, ended at a NUL.
template <int N> QString Padded(const FixedString<N>& s) {
    QString r = s.raw();
    const qsizetype nul = r.indexOf(QChar(0));
    if (nul >= 0)
        r.truncate(nul);
    return r;
}

} // namespace

ObjectList BuildObjectList(const Document& doc, int tab) {
    ObjectList list;
    if (tab >= 1 && tab <= 7) {
        list.rows.append(QStringLiteral("Tab - ") + Padded(doc.Tabs[tab].Name));
        list.map[0] = {KindTab, 0};
        int count = 0;
        auto add = [&](int kind, int slot, const QString& text) {
            ++count;
            if (count < ObjectMapRows)
                list.map[count] = {kind, slot};
            list.rows.append(text);
        };
        for (int i = 1; i <= MaxImages; ++i)
            if (doc.Images[i].TabNo == tab)
                add(KindImage, i, QStringLiteral("Image - ") + Padded(doc.Images[i].Name));
        for (int i = 1; i <= MaxTexts; ++i)
            if (doc.Texts[i].TabNo == tab)
                add(KindText, i, QStringLiteral("Text - ") + Padded(doc.Texts[i].Name));
    } else if (tab == SlideShowTab) {
        list.rows.append(QStringLiteral("Slide Show"));
        list.map[0] = {KindSlideShow, 0};
    } else if (tab == ProfileTab) {
        list.rows.append(QStringLiteral("Profile "));
        list.map[0] = {KindProfile, 0};
    }
    return list;
}

int FindObjectRow(const std::array<ObjectRef, ObjectMapRows>& map, ObjectRef ref) {
    for (int r = 1; r < ObjectMapRows; ++r)
        if (map[r] == ref)
            return r;
    return -1;
}

} // namespace zentor
