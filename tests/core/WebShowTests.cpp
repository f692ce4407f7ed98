#include "TestSupport.h"

#include "export/WebShow.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace zentor;

// What the web page's script plays by: the pages in show order and the ring's names.
TEST(WebShow, OrderAndTheRingsNames) {
    test::Sandbox box;
    auto doc = box.newDocument();
    doc->Tabs[8].Name = QString(); // a blank slide show keeps a name of its own
    const QJsonObject show = WebShowNumbers(*doc, {11, 13, 18});
    EXPECT_EQ(show.value("order").toArray(), (QJsonArray{1, 3, 8}));
    const QJsonArray ring = show.value("ring").toArray();
    ASSERT_EQ(ring.size(), 9);
    const char* names[] = {"",          "Overview",   "Awards",
                           "Education", "Experience", "Skills & Interests",
                           "Objective", "Personal",   "Slide Show"};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(ring[i].toObject().value("name").toString(), names[i]) << i;
    EXPECT_EQ(ring[1].toObject().value("width").toInt(), 80);
}
