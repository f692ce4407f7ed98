#include "TestSupport.h"

#include "edit/UndoStack.h"

#include <gtest/gtest.h>

#include <functional>

namespace zentor::test {
namespace {

// Whether a change is a step of the history is whether the saved file would differ: the
// comparison must agree with the bytes for what is saved and for what is not.
TEST(UndoRecords, AChangeCountsExactlyWhenTheSavedBytesDiffer) {
    const struct {
        const char* what;
        std::function<void(Document&)> change;
        bool same;
    } cases[] = {
        {"nothing", [](Document&) {}, true},
        {"a letter of a text in use", [](Document& d) { d.Texts[3].Text.data()[4095] = 'y'; },
         false},
        {"a picture's hidden field", [](Document& d) { d.Images[2].Reserved = 7; }, false},
        {"the page colour", [](Document& d) { d.Header.BackColor ^= 1; }, false},
        {"a page name", [](Document& d) { d.Tabs[8].Name = "Show"; }, false},
        {"a profile field", [](Document& d) { d.Profile.PostCode = "75001"; }, false},
        {"a text taken off its page", [](Document& d) { d.Texts[3].TabNo = 0; }, false},
        {"a slot not in use", [](Document& d) { d.Texts[9].Text = "unseen"; }, true},
        {"the template slot", [](Document& d) { d.Images[0].Left = 99; }, true},
        {"the profile page's record", [](Document& d) { d.Tabs[0].Extra = 5; }, true},
        {"the stored counts", [](Document& d) { d.Header.TextCount = 77; }, true},
        {"a text moved to a free slot further on",
         [](Document& d) { std::swap(d.Texts[3], d.Texts[5]); }, true},
        {"two texts swapped", [](Document& d) { std::swap(d.Texts[3], d.Texts[6]); }, false},
    };
    Sandbox box;
    auto base = box.newDocument();
    PlaceText(*base, 3, 2, QRect(1, 2, 30, 40), QString(4096, QLatin1Char('x')));
    PlaceText(*base, 6, 2, QRect(5, 6, 70, 80), QStringLiteral("second"));
    PlaceImage(*base, 2, 1, QRect(3, 3, 9, 9), QStringLiteral("a.png"));
    for (const auto& c : cases) {
        Document changed = *base;
        c.change(changed);
        EXPECT_EQ(SavedBytes(changed) == SavedBytes(*base), c.same) << c.what; // the oracle
        EXPECT_EQ(SameRecords(*base, changed), c.same) << c.what;
        UndoStack undo;
        EXPECT_EQ(undo.push(QStringLiteral("Edit"), *base, changed), !c.same) << c.what;
    }
}

} // namespace
} // namespace zentor::test
