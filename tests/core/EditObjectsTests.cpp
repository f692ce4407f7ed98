#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "edit/DeleteObject.h"
#include "edit/HitTest.h"
#include "edit/InsertObject.h"
#include "edit/ObjectList.h"
#include "edit/ZOrder.h"
#include "model/TabMap.h"

#include <gtest/gtest.h>

#include <functional>

using namespace zentor;
using namespace zentor::test;
using Answer = Prompter::Answer;

namespace {

void PutImage(Document& d, int slot, int tab, IntRect r, const char* name) {
    PlaceImage(d, slot, tab, {r.Left, r.Top, r.Width, r.Height}).Name = name;
}

void PutText(Document& d, int slot, int tab, IntRect r, const char* name) {
    PlaceText(d, slot, tab, {r.Left, r.Top, r.Width, r.Height}).Name = name;
}

TEST(EditObjects, ObjectListRowsAndMap) {
    Sandbox box;
    auto d = box.newDocument();
    PutText(*d, 4, 1, {0, 0, 10, 10}, "caption");
    PutImage(*d, 9, 1, {0, 0, 10, 10}, "photo");
    PutImage(*d, 2, 1, {0, 0, 10, 10}, "logo");
    PutImage(*d, 3, 2, {0, 0, 10, 10}, "elsewhere");
    const ObjectList l = BuildObjectList(*d, 1);
    const QString pad24(24, QLatin1Char(' '));
    EXPECT_EQ(l.rows, (QStringList{"Tab - Overview" + pad24, "Image - logo" + QString(28, ' '),
                                   "Image - photo" + QString(27, ' '),
                                   "Text - caption" + QString(25, ' ')}));
    EXPECT_EQ(l.map[0], (ObjectRef{KindTab, 0}));
    EXPECT_EQ(l.map[1], (ObjectRef{KindImage, 2}));
    EXPECT_EQ(l.map[2], (ObjectRef{KindImage, 9}));
    EXPECT_EQ(l.map[3], (ObjectRef{KindText, 4}));
    EXPECT_EQ(l.map[4], (ObjectRef{}));
    EXPECT_EQ(BuildObjectList(*d, 0).rows, QStringList{"Profile "});
    EXPECT_EQ(BuildObjectList(*d, 0).map[0].kind, KindProfile);
    EXPECT_EQ(BuildObjectList(*d, 8).rows, QStringList{"Slide Show"});
    EXPECT_EQ(BuildObjectList(*d, 8).map[0].kind, KindSlideShow);
}

struct HitCase {
    const char* what;
    double x, y;
    ObjectRef picked; // (0, 0): the page row
};

TEST(EditObjects, SelectByMousePrefersTextsThenHigherSlots) {
    Sandbox box;
    auto d = box.newDocument();
    PutImage(*d, 6, 1, {100, 100, 200, 200}, "big picture"); // drawn over nothing, still loses
    PutImage(*d, 2, 1, {400, 400, 50, 50}, "low");
    PutImage(*d, 3, 1, {420, 420, 50, 50}, "high");
    PutText(*d, 3, 1, {150, 150, 40, 40}, "under");
    PutText(*d, 7, 1, {160, 160, 40, 40}, "over");
    PutText(*d, MaxTexts, 1, {600, 100, 50, 50}, "last slot");
    PutImage(*d, MaxImages, 1, {600, 300, 50, 50}, "last slot");
    PutImage(*d, 5, 1, {600, 300, 50, 50}, "under the last");
    PutText(*d, 9, 2, {0, 0, 800, 600}, "other page");
    const ObjectList l = BuildObjectList(*d, 1);
    const HitCase cases[] = {
        {"text over the image", 155, 155, {KindText, 3}},
        {"higher text slot wins", 170, 170, {KindText, 7}},
        {"image alone", 110, 110, {KindImage, 6}},
        {"higher image slot wins", 430, 430, {KindImage, 3}},
        {"right and bottom edges are inside", 450, 450, {KindImage, 3}},
        {"one past the edge", 470.5, 430, {}},
        {"left and top edges are inside", 400, 400, {KindImage, 2}},
        {"last text slot is never found", 610, 110, {}},
        {"last image slot falls through to a lower one", 610, 310, {KindImage, 5}},
        {"empty place selects the page", 10, 10, {}},
    };
    for (const HitCase& c : cases) {
        const int row = SelectByMouse(*d, l.map, 1, c.x, c.y);
        ASSERT_GE(row, 0) << c.what;
        EXPECT_EQ(l.map[row], c.picked) << c.what;
        EXPECT_EQ(row == 0, c.picked == ObjectRef{}) << c.what;
    }
    EXPECT_EQ(SelectByMouse(*d, l.map, 0, 155, 155), -1);
    EXPECT_EQ(SelectByMouse(*d, l.map, 8, 155, 155), -1);
    EXPECT_EQ(SelectByMouse(*d, BuildObjectList(*d, 7).map, 7, 155, 155),
              0); // the last content page
}

TEST(EditObjects, ZOrderMovesOnlyThePagesRecords) {
    Sandbox box;
    auto d = box.newDocument();
    const char* names[] = {"", "A", "b", "C", "d", "E"};
    for (int s = 1; s <= 5; ++s) {
        PutImage(*d, s, s % 2 ? 1 : 2, {s, s, 10, 10}, names[s]);
        PutText(*d, s, s % 2 ? 1 : 2, {s, s, 10, 10}, names[s]);
    }
    auto order = [&](bool texts) {
        QString s;
        for (int i = 1; i <= 5; ++i)
            s += texts ? d->Texts[i].Name.text() : d->Images[i].Name.text();
        return s;
    };
    const struct {
        int kind, slot;
        bool fore;
        int newSlot;
        const char* after;
    } cases[] = {
        {KindImage, 1, true, 5, "CbEdA"}, {KindImage, 5, false, 1, "EbAdC"},
        {KindImage, 5, true, 5, "AbCdE"}, {KindImage, 1, false, 1, "AbCdE"},
        {KindText, 3, true, 5, "AbEdC"},  {KindText, 5, false, 1, "CbAdE"},
        {KindText, 4, false, 2, "CdAbE"}, {KindTab, 3, true, 3, "CdAbE"},
    };
    for (const auto& c : cases) {
        // Texts and images are reordered independently; the image table restarts each time.
        if (c.kind == KindImage)
            for (int s = 1; s <= 5; ++s)
                d->Images[s].Name = names[s];
        EXPECT_EQ(ZOrderArr(*d, c.kind, c.slot, 1 + (c.slot % 2 == 0), c.fore), c.newSlot);
        EXPECT_EQ(order(c.kind != KindImage), c.after) << c.kind << " " << c.slot;
    }
    // Whole records move: each text still carries the geometry it was made with.
    for (int s = 1; s <= 5; ++s)
        EXPECT_EQ(d->Texts[s].Name.text(), names[d->Texts[s].Left]) << s;
}

TEST(EditObjects, InsertUsesTheLowestFreeSlotOrTheTemplate) {
    Sandbox box;
    auto d = box.newDocument();
    EXPECT_EQ(InsertObject(*d, KindImage, 0), -1);
    EXPECT_EQ(InsertObject(*d, KindText, 8), -1);
    EXPECT_EQ(InsertObject(*d, KindImage, 3), 1);
    EXPECT_EQ(InsertObject(*d, KindImage, 3), 2);
    EXPECT_EQ(d->Images[2].Name.text(), "image 2");
    EXPECT_EQ(d->Images[2].TabNo, 3);
    EXPECT_EQ(d->Images[2].Width, d->Images[0].Width);
    d->Images[1] = d->Images[0]; // deleted: its slot comes back first
    d->Images[3].TabNo = -1;     // neither free nor in use: skipped
    EXPECT_EQ(InsertObject(*d, KindImage, 4), 1);
    EXPECT_EQ(InsertObject(*d, KindImage, 4), 4);
    const int t = InsertObject(*d, KindText, 7);
    EXPECT_EQ(d->Texts[t].Name.text(), "text 1");
    EXPECT_EQ(d->Texts[t].Text, d->Texts[0].Text);
    for (int s = 1; s <= MaxImages; ++s)
        d->Images[s].TabNo = 1;
    EXPECT_EQ(InsertObject(*d, KindImage, 5), 0);
    EXPECT_EQ(d->Images[0].TabNo, 5);
    EXPECT_EQ(d->Images[0].Name.text(), "image 0");
    // The last slot of each table is found when it is the only free one.
    d->Images[MaxImages].TabNo = 0;
    EXPECT_EQ(InsertObject(*d, KindImage, 2), MaxImages);
    for (int s = 1; s < MaxTexts; ++s)
        d->Texts[s].TabNo = 1;
    EXPECT_EQ(InsertObject(*d, KindText, 2), MaxTexts);
}

struct DeleteCase {
    int kind;
    const char* title;
    const char* text;
    std::function<bool(const Document&, const Document&)> changed; // (before, after)
};

TEST(EditObjects, DelObjectAsksAndOnlyYesChanges) {
    Sandbox box;
    const DeleteCase cases[] = {
        {KindTab, "Reset Tab", "Are you sure to reset tab - Overview?",
         [](const Document&, const Document& a) {
             return a.Tabs[1].Picture == a.Images[0] && a.Tabs[1].Icon.raw().trimmed().isEmpty();
         }},
        {KindImage, "Delete Image", "Are you sure to delete image 2?",
         [](const Document&, const Document& a) { return a.Images[2] == a.Images[0]; }},
        {KindText, "Delete Text", "Are you sure to delete text 2?",
         [](const Document&, const Document& a) { return a.Texts[2] == a.Texts[0]; }},
        {KindProfile, "Delete User Icon", "Are you sure to delete user icon?",
         [](const Document&, const Document& a) {
             return a.Profile.UserIcon.trimNull().isEmpty();
         }},
        {KindSlideShow, "Delete Background Picture", "Are you sure to delete Background picture?",
         [&](const Document&, const Document& a) {
             return a.Header.BackPicture.trimNull() == box.ctx.defaultBackPicture();
         }},
    };
    for (const DeleteCase& c : cases) {
        for (Answer answer : {Answer::No, Answer::Yes}) {
            auto d = box.newDocument();
            d->Tabs[1].Name = "  Overview";
            d->Tabs[1].Icon = "icon.png";
            d->Tabs[1].Picture.FileName = "tab.jpg";
            d->Profile.UserIcon = "me.png";
            d->Header.BackPicture = "back.jpg";
            PutImage(*d, 2, 1, {1, 2, 3, 4}, "image 2");
            PutText(*d, 2, 1, {1, 2, 3, 4}, "text 2");
            auto before = std::make_unique<Document>(*d);
            ScriptedPrompter p;
            p.expectQuestion(c.title, c.text, answer);
            EXPECT_EQ(DelObject(*d, c.kind, 2, 1, p, box.ctx), answer == Answer::Yes);
            EXPECT_PROMPTS_DONE(p);
            if (answer == Answer::Yes)
                EXPECT_TRUE(c.changed(*before, *d)) << c.title;
            else
                EXPECT_FALSE(c.changed(*before, *d)) << c.title;
        }
    }
    // The last slot of each table is deleted; a slot or page past the tables asks nothing.
    const struct {
        int kind, slot, tab;
        const char* title; // nullptr: refused without a question
    } edges[] = {
        {KindImage, MaxImages, 1, "Delete Image"}, {KindText, MaxTexts, 1, "Delete Text"},
        {KindImage, MaxImages + 1, 1, nullptr},    {KindImage, -1, 1, nullptr},
        {KindText, MaxTexts + 1, 1, nullptr},      {KindText, -1, 1, nullptr},
        {KindTab, 0, MaxTab + 1, nullptr},         {KindTab, 0, -1, nullptr},
    };
    for (const auto& e : edges) {
        auto d = box.newDocument();
        d->Images[MaxImages].Name = d->Texts[MaxTexts].Name = "last";
        ScriptedPrompter p;
        if (e.title)
            p.expectAsk(e.title, "Are you sure to delete last?", Answer::Yes);
        EXPECT_EQ(DelObject(*d, e.kind, e.slot, e.tab, p, box.ctx), e.title != nullptr)
            << e.kind << " " << e.slot << " " << e.tab;
        EXPECT_PROMPTS_DONE(p);
    }
}

} // namespace
