#include "edit/ZOrder.h"

#include <vector>

namespace zentor {

namespace {

template <typename Table> int Reorder(Table& table, int s, int tab, bool isFore) {
    const int upper = int(table.size()) - 1;
    if (s < 0 || s > upper)
        return s;
    std::vector<int> p;
    if (isFore) {
        for (int j = s; j <= upper; ++j)
            if (table[j].TabNo == tab)
                p.push_back(j);
    } else {
        for (int j = 1; j <= s; ++j)
            if (table[j].TabNo == tab)
                p.push_back(j);
    }
    const int n = int(p.size());
    if (n <= 1)
        return s;
    const auto swap = table[s];
    if (isFore) {
        for (int k = 0; k < n - 1; ++k)
            table[p[k]] = table[p[k + 1]];
        table[p[n - 1]] = swap;
        return p[n - 1];
    }
    for (int k = n - 1; k >= 1; --k)
        table[p[k]] = table[p[k - 1]];
    table[p[0]] = swap;
    return p[0];
}

} // namespace

int ZOrderArr(Document& doc, int kind, int slot, int currentTab, bool isFore) {
    if (kind == 1)
        return Reorder(doc.Images, slot, currentTab, isFore);
    if (kind == 2)
        return Reorder(doc.Texts, slot, currentTab, isFore);
    return slot;
}

} // namespace zentor
