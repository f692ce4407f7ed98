#include "TestSupport.h"

#include "io/FileUtil.h"
#include "model/CodePage.h"
#include "model/CodePageCheck.h"
#include "model/DefaultDocument.h"
#include "model/EmptyPages.h"
#include "model/TabMap.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <functional>

using namespace zentor;
using namespace zentor::test;

TEST(DefaultDocument, DefaultsWhichFieldsStayNulAndWhatNewForgets) {
    Sandbox box;
    auto doc = box.newDocument();
    const ScriptHeader& h = doc->Header;
    EXPECT_EQ(h.FrameWidth, 800);
    EXPECT_EQ(h.FrameHeight, 600);
    EXPECT_EQ(h.MusicVolume, 500);
    EXPECT_EQ(h.AutoRepeat, 1);
    EXPECT_EQ(h.ShowSpeed, 20);
    EXPECT_EQ(h.ShowAsRun, 1);
    EXPECT_EQ(h.KeepOnTime, 7000);
    EXPECT_EQ(h.BackColor, 0); // black around a frame of another shape
    EXPECT_EQ(h.BackPicture.trimNull(), box.ctx.AppPath + QStringLiteral("Res/bakpic.jpg"));
    EXPECT_FALSE(h.BackMusic.isNul());
    EXPECT_TRUE(h.BackMusic.trimNull().isEmpty());
    EXPECT_TRUE(doc->Profile.UserIcon.isNul());
    EXPECT_TRUE(doc->Profile.Phone.isNul());
    EXPECT_EQ(doc->Profile.Email.text(), QString::fromLatin1(SupportEmail));
    EXPECT_EQ(doc->Profile.Website.text(), QString::fromLatin1(HomePage));

    const char* names[] = {"Slide Show",         "Overview",  "Awards",   "Education", "Experience",
                           "Skills & Interests", "Objective", "Personal", "Slide Show"};
    for (int i = 0; i <= 8; ++i) {
        EXPECT_EQ(doc->Tabs[i].Name.text(), QString::fromLatin1(names[i]));
        EXPECT_TRUE(doc->Tabs[i].Icon.isNul());
        EXPECT_TRUE(doc->Tabs[i].Picture.FileName.isNul());
    }
    const TextElement& t = doc->Texts[0];
    EXPECT_EQ(t.FontName.text(), "Arial");
    EXPECT_EQ(t.FontSize, 12);
    EXPECT_EQ(t.FontColor, -1);
    EXPECT_EQ(t.FontShadow, -1);
    EXPECT_EQ(t.TextHint, 4);
    EXPECT_EQ(t.Width, 150);
    EXPECT_TRUE(t.Text.isNul());
    EXPECT_EQ(doc->Images[0].PicAlign, 3);
    EXPECT_EQ(doc->Images[0].Width, 120);
    EXPECT_EQ(doc->Images[0].Height, 120);

    // New forgets every object and the path.
    doc->Texts[5].TabNo = 2;
    doc->Images[32].TabNo = 1;
    doc->ScriptPath = "/x.qds";
    doc->Dirty = true;
    NewDocument(*doc, box.ctx);
    EXPECT_EQ(doc->Texts[5].TabNo, 0);
    EXPECT_EQ(doc->Images[32].TabNo, 0);
    EXPECT_TRUE(doc->ScriptPath.isEmpty());
    EXPECT_EQ(GetArrNo(*doc, 1), 1);
    EXPECT_EQ(GetArrNo(*doc, 2), 1);
}

TEST(TabMap, StripPositionsBothWays) {
    const int strip[] = {1, 8, 7, 6, 5, 4, 3, 2, 9};
    for (int tab = 0; tab <= 8; ++tab) {
        EXPECT_EQ(GetTabIndex(tab), strip[tab]) << tab;
        EXPECT_EQ(StripToTab(strip[tab]), tab) << tab;
    }
    EXPECT_EQ(GetTabIndex(-1), 0);
    EXPECT_EQ(GetTabIndex(9), 0);
    EXPECT_EQ(StripToTab(0), 0); // not a strip position: left as it is
    EXPECT_EQ(StripToTab(12), 12);
}

TEST(ProcessContext, CommandLineRule) {
    struct Case {
        QStringList args;
        const char* expected;
    };
    const Case cases[] = {
        {{}, ""},
        {{"cv.qds"}, "cv.qds"},
        {{"\"/home/a b/cv.qds\""}, "/home/a b/cv.qds"},
        {{"/home/a", "b/cv.qds"}, "/home/a b/cv.qds"},
        {{"\"/tmp/cv.qds"}, "/tmp/cv.qds"},
        {{"/tmp/cv.qds\""}, "/tmp/cv.qds"},
        {{"\"\"x\"\""}, "\"x\""},
        {{"\""}, ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CommandLineFromArguments(c.args), QString::fromUtf8(c.expected))
            << c.args.join(QLatin1Char('|')).toStdString();
}

TEST(ProcessContext, WorkFolderComesBackAndGoesAwayAndOnlyGoneRunsAreCleared) {
    QTemporaryDir temp;
    const ProcessContext ctx = ProcessContext::create("/opt/zentor/bin", temp.path());
    EXPECT_EQ(ctx.AppPath, "/opt/zentor/bin/");
    EXPECT_EQ(ctx.WorkFolder, temp.path() + QStringLiteral("/Zentor/"));
    EXPECT_EQ(ctx.TempImagePath, ctx.WorkFolder + QStringLiteral("tempgen.jpg"));
    EXPECT_TRUE(QDir(ctx.WorkFolder).exists());
    ctx.removeWorkFolder();
    EXPECT_FALSE(QDir(ctx.WorkFolder).exists());
    EXPECT_TRUE(ctx.ensureWorkFolder());
    EXPECT_TRUE(QDir(ctx.WorkFolder).exists());

    // At start, only the private work folders of processes that are gone are removed.
    const QString own = QString::number(QCoreApplication::applicationPid());
    struct Row {
        const char* name;
        bool kept;
    };
    const Row rows[] = {
        {"zentor-cli-999999999-a1b2c3", false}, // no such process: killed midway
        {"zentor-cli-%1-a1b2c3", true},         // this very process
        {"zentor-cli-abc-a1b2c3", true},        // not a pid: not ours
        {"zentor-cli-999999999", true},         // not our naming
        {"other-999999999-a1b2c3", true},       // another program's
    };
    for (const Row& r : rows)
        ASSERT_TRUE(QDir(temp.path()).mkpath(QString::fromLatin1(r.name).arg(own) + "/inner"));
    EXPECT_EQ(RemoveStaleWorkFolders(temp.path(), "zentor-cli"), 1);
    for (const Row& r : rows)
        EXPECT_EQ(QDir(temp.path()).exists(QString::fromLatin1(r.name).arg(own)), r.kept) << r.name;
    EXPECT_TRUE(
        PrivateWorkTemplate(temp.path(), "zentor-cli").endsWith("/zentor-cli-" + own + "-XXXXXX"));
}

TEST(FileUtil, HexColorTrimNullAndPaths) {
    EXPECT_EQ(HexColor(255, 6), "0000FF");
    EXPECT_EQ(HexColor(0x1234567, 6), "234567");
    EXPECT_EQ(HexColor(0xFF, 8), "000000FF");
    EXPECT_EQ(HexColor(0xFFFFFFFF, 8), "FFFFFFFF");
    EXPECT_EQ(TrimNull("  a b "), "a b");
    EXPECT_EQ(TrimNull(QString::fromUtf16(u" ab\0cd  ", 8)), "ab");
    EXPECT_EQ(ResolvePath("/p/cv.qds", " media/a.jpg "), "/p/media/a.jpg");
    EXPECT_EQ(ResolvePath("/p/cv.qds", "/abs/a.jpg"), "/abs/a.jpg");
    EXPECT_EQ(ResolvePath(QString(), "rel.jpg"), "rel.jpg");
}

TEST(FileUtil, ReadFileBytesKeepsTheBufferOnFailure) {
    Sandbox box;
    ASSERT_TRUE(WriteAll(box.path("a.bin"), QByteArray("abc")));
    ASSERT_TRUE(WriteAll(box.ctx.TempImagePath, QByteArray("temp!")));
    QByteArray buffer("previous");
    EXPECT_EQ(ReadFileBytes(box.path("missing"), buffer), 0);
    EXPECT_EQ(buffer, QByteArray("previous"));
    EXPECT_EQ(ReadFileBytes(box.dir.path(), buffer), 0); // a folder
    EXPECT_EQ(buffer, QByteArray("previous"));
    EXPECT_EQ(ReadFileBytes(QStringLiteral("  ") + box.path("a.bin") + QStringLiteral(" "), buffer),
              3);
    EXPECT_EQ(buffer, QByteArray("abc"));
    EXPECT_EQ(ReadFileBytes("   ", buffer, box.ctx.TempImagePath), 5);
    EXPECT_EQ(buffer, QByteArray("temp!"));
}

TEST(CodePage, FieldsAreCutAtCharacterBoundaries) {
    // Windows-1252 by default: one byte per letter, € included.
    FixedString<4> f;
    f = "€uro!";
    EXPECT_EQ(QByteArray(f.data(), 4), QByteArray("\x80uro"));
    f = "ĳ"; // not in the code page
    EXPECT_EQ(QByteArray(f.data(), 4), QByteArray("?   "));

    // A multi-byte code page never splits a character at the end of a field.
    auto sjis = CodePage::create("932");
    ASSERT_TRUE(sjis) << "iconv lacks CP932";
    CodePage::overrideActive(std::move(sjis));
    FixedString<5> jp;
    jp = "日本語";
    EXPECT_EQ(QByteArray(jp.data(), 5).right(1), QByteArray(" ")); // 2+2 bytes, then a blank
    EXPECT_EQ(jp.text(), "日本");
    jp = QStringLiteral("日a本語"); // cut after whole characters, whatever their widths
    EXPECT_EQ(jp.text(), "日a本");
    CodePage::overrideActive(nullptr);

    auto cyrillic = CodePage::create("1251");
    ASSERT_TRUE(cyrillic);
    EXPECT_EQ(cyrillic->encode(QStringLiteral("Жук"), 10), QByteArray("\xC6\xF3\xEA"));
    EXPECT_EQ(cyrillic->decode("\xC6\xF3\xEA"), "Жук");
    EXPECT_EQ(cyrillic->decode("\xC6\x98\xEA"), QStringLiteral("Ж\uFFFDк"));
    EXPECT_FALSE(CodePage::create("no-such-page"));
}

TEST(CodePage, ChosenForTheLanguageAsWindowsDoesAndReportsWhatItCannotHold) {
    const struct {
        const char* locale;
        const char* page;
    } cases[] = {
        {"en_US", "1252"}, {"de_DE", "1252"}, {"pl_PL", "1250"}, {"sr_Latn_RS", "1250"},
        {"ru_RU", "1251"}, {"sr_RS", "1251"}, {"el_GR", "1253"}, {"tr_TR", "1254"},
        {"he_IL", "1255"}, {"ar_EG", "1256"}, {"lt_LT", "1257"}, {"vi_VN", "1258"},
        {"th_TH", "874"},  {"ja_JP", "932"},  {"zh_CN", "936"},  {"ko_KR", "949"},
        {"zh_TW", "950"},  {"zh_HK", "950"},
    };
    for (const auto& c : cases) {
        const QString page = WindowsCodePageFor(QLocale(QString::fromLatin1(c.locale)));
        EXPECT_EQ(page, QLatin1String(c.page)) << c.locale;
        EXPECT_TRUE(CodePage::create(page)) << c.page << " is not available";
    }

    // A page reports what it cannot hold.
    const struct {
        const char* codePage;
        const char* text;
        const char* missing;
    } unstorable[] = {
        {"1252", "Łucja Żółć?", "ŁŻłć"}, // ó is Western, '?' is stored as it is
        {"1250", "Łucja Żółć", ""},
        {"1252", "Ελένη", "Ελένη"},
        {"1251", "Ж😀Ж", "😀"},
    };
    for (const auto& c : unstorable) {
        auto codePage = CodePage::create(QLatin1String(c.codePage));
        ASSERT_TRUE(codePage);
        EXPECT_EQ(UnstorableCharacters(*codePage, QString::fromUtf8(c.text)),
                  QString::fromUtf8(c.missing))
            << c.codePage << " " << c.text;
    }
}

TEST(EmptyPages, WhatMakesAContentPageHoldSomething) {
    struct Case {
        const char* what;
        std::function<void(Document&)> change;
        QList<int> empty;
    };
    const QList<int> all{1, 2, 3, 4, 5, 6, 7};
    const auto but = [&](int tab) {
        QList<int> l = all;
        l.removeOne(tab);
        return l;
    };
    const Case cases[] = {
        {"a new document", [](Document&) {}, all},
        {"a text on tab 3", [](Document& d) { d.Texts[1].TabNo = 3; }, but(3)},
        {"the last image slot on tab 7", [](Document& d) { d.Images[MaxImages].TabNo = 7; },
         but(7)},
        {"the last text slot on tab 1", [](Document& d) { d.Texts[MaxTexts].TabNo = 1; }, but(1)},
        {"a tab picture", [](Document& d) { d.Tabs[2].Picture.FileName = "a.jpg"; }, but(2)},
        {"a tab picture of blanks", [](Document& d) { d.Tabs[2].Picture.FileName = "   "; }, all},
        {"templates in slot 0",
         [](Document& d) {
             d.Texts[0].TabNo = 4;
             d.Images[0].TabNo = 4;
         },
         all},
        {"objects on the profile and show tabs",
         [](Document& d) {
             d.Texts[1].TabNo = ProfileTab;
             d.Images[1].TabNo = SlideShowTab;
         },
         all},
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
