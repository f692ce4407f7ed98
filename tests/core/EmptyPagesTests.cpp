#include "TestSupport.h"

#include "model/EmptyPages.h"

#include <gtest/gtest.h>

#include <functional>

using namespace zentor;
using namespace zentor::test;

TEST(EmptyPages, WhatMakesAContentPageHoldSomething) {
    struct Case {
        const char* what;
        std::function<void(Document&)> change;
        QList<int> empty;
    };
    const Case cases[] = {
        {"a new document", [](Document&) {}, {1, 2, 3, 4, 5, 6, 7}},
        {"a text on tab 3", [](Document& d) { d.Texts[1].TabNo = 3; }, {1, 2, 4, 5, 6, 7}},
        {"the last image slot on tab 7",
         [](Document& d) { d.Images[MaxImages].TabNo = 7; },
         {1, 2, 3, 4, 5, 6}},
        {"the last text slot on tab 1",
         [](Document& d) { d.Texts[MaxTexts].TabNo = 1; },
         {2, 3, 4, 5, 6, 7}},
        {"a tab picture on tab 2",
         [](Document& d) { d.Tabs[2].Picture.FileName = "a.jpg"; },
         {1, 3, 4, 5, 6, 7}},
        {"a tab picture of blanks",
         [](Document& d) { d.Tabs[2].Picture.FileName = "   "; },
         {1, 2, 3, 4, 5, 6, 7}},
        {"templates in slot 0",
         [](Document& d) {
             d.Texts[0].TabNo = 4;
             d.Images[0].TabNo = 4;
         },
         {1, 2, 3, 4, 5, 6, 7}},
        {"objects on the profile and show tabs",
         [](Document& d) {
             d.Texts[1].TabNo = ProfileTab;
             d.Images[1].TabNo = SlideShowTab;
         },
         {1, 2, 3, 4, 5, 6, 7}},
    };
    Sandbox box;
    for (const Case& c : cases) {
        auto doc = box.newDocument();
        c.change(*doc);
        EXPECT_EQ(EmptyPages(*doc), c.empty) << c.what;
    }
    auto doc = box.newDocument();
    for (int tab : {-1, ProfileTab, SlideShowTab, SlideShowTab + 1})
        EXPECT_FALSE(PageHoldsNothing(*doc, tab)) << tab;
}
