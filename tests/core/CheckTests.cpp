#include "TestSupport.h"

#include "check/CheckDocument.h"
#include "check/Contrast.h"
#include "check/WordScan.h"
#include "io/ScriptFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <functional>
#include <set>

using namespace zentor;
using namespace zentor::test;

namespace {

// Every content page holds one correct sentence, black on white, in a box it fits; no
// files. Nothing to report.
std::unique_ptr<Document> CleanDocument(const Sandbox& box) {
    auto doc = box.newDocument();
    doc->Header.BackPicture = QString();
    doc->Header.BackMusic = QString();
    for (int tab = 1; tab <= 7; ++tab) {
        TextElement& t = PlaceText(*doc, tab, tab, QRect(20, 20, 300, 100),
                                   "A correct sentence about the work.");
        t.FontColor = int32_t(0xFF000000);
        t.FontShadow = 0;
    }
    return doc;
}

std::unique_ptr<SpellChecker> OpenUs() {
    QString error;
    auto speller = SpellChecker::open("en_US", &error);
    EXPECT_TRUE(speller) << error.toStdString();
    return speller;
}

using Seen = std::set<std::pair<FindingKind, int>>;

Seen KindsAndTabs(const std::vector<Finding>& findings) {
    Seen seen;
    for (const Finding& f : findings)
        seen.insert({f.kind, f.tab});
    return seen;
}

} // namespace

TEST(Check, EachKindIsFoundOnlyWhereItIs) {
    Sandbox box;
    using Change = std::function<void(Document&)>;
    struct Case {
        const char* what;
        Change change;
        Seen expected;
    };
    const auto text = [](Document& d, int slot) -> TextElement& { return d.Texts[size_t(slot)]; };
    const auto words = [&](int slot, const char* s) -> Change {
        return [=](Document& d) { text(d, slot).Text = QString::fromUtf8(s); };
    };
    const auto colour = [&](int slot, uint32_t argb, int shadow = 0) -> Change {
        return [=](Document& d) {
            text(d, slot).FontColor = int32_t(argb);
            text(d, slot).FontShadow = shadow;
        };
    };
    // A dark picture under the start of page 6's text, `width` wide from the page's left.
    const auto dark = [&](int width, int left = 0, Change also = {}) -> Change {
        return [=, &box](Document& d) {
            PlaceImage(d, 1, 6, QRect(left, 0, width, 200),
                       Picture(box, "dark.png", width, 200, 0xFF202020));
            if (also)
                also(d);
        };
    };
    const auto grey = [&](int points, int style) -> Change {
        return [=](Document& d) {
            text(d, 2).FontColor = int32_t(0xFF888888); // 3.5:1
            text(d, 2).FontSize = points;
            text(d, 2).FontStyle = style;
        };
    };
    // A 100 x 50 picture drawn on page 7 at `r`.
    const auto drawn = [&](QRect r) -> Change {
        return
            [=, &box](Document& d) { PlaceImage(d, 1, 7, r, Picture(box, "small.png", 100, 50)); };
    };
    const auto userIcon = [&](int side) -> Change {
        return [=, &box](Document& d) {
            d.Profile.UserIcon = Picture(box, QStringLiteral("icon%1.png").arg(side), side, side);
        };
    };
    using K = FindingKind;
    const Case cases[] = {
        {"correct sentences, black on white", [](Document&) {}, {}},
        {"a misspelt word", words(3, "I recieved an award."), {{K::Spelling, 3}}},
        {"a misspelt page name",
         [](Document& d) { d.Tabs[6].Name = "Objectve"; },
         {{K::Spelling, 6}}},
        {"the person's names, addresses and numbers",
         [&](Document& d) {
             d.Profile.Address = "12 Brynmawrstraat";
             words(2, "Quorvix Vitara (quorvix@zentorbox.example, www.qvitara.example, "
                      "qvitara.example/cv) lives at Brynmawrstraat, built 3D models in 2024.")(d);
         },
         {}},
        {"more lines than the box holds",
         [&](Document& d) {
             words(4, "One line.\nTwo lines.\nThree lines.\nFour.")(d);
             text(d, 4).Height = 30;
         },
         {{K::Overflow, 4}}},
        {"a word wider than its box",
         [&](Document& d) {
             words(5, "Internationalisation")(d);
             text(d, 5).Width = 40;
             d.Profile.Address = "Internationalisation"; // spelling aside
         },
         {{K::Overflow, 5}}},
        {"light grey on white", colour(1, 0xFFBBBBBB), {{K::Contrast, 1}}},
        {"white on white with a shadow outlining it", colour(1, 0xFFFFFFFF, -1), {}},
        {"dark blue over a dark picture: its black shadow does not help",
         dark(400, 0, colour(6, 0xFF000080, -1)),
         {{K::Contrast, 6}}},
        {"grey at 12 pt", grey(12, 0), {{K::Contrast, 2}}},
        {"grey at 18 pt is large enough", grey(18, 0), {}},
        {"black text over a dark picture", dark(400), {{K::Contrast, 6}}},
        {"a dark picture under a quarter of the line", dark(80), {{K::Contrast, 6}}},
        {"a dark speck at the start of the line", dark(26), {}},
        {"a narrow box whose last column is dark",
         dark(200, 22, [&](Document& d) { text(d, 6).Width = 3; }),
         {{K::Overflow, 6}, {K::Contrast, 6}}},
        {"a picture drawn 2 times its pixels", drawn({400, 300, 200, 100}), {{K::Resolution, 7}}},
        {"drawn 1.5 times its pixels", drawn({400, 300, 150, 75}), {}},
        {"drawn smaller than its pixels", drawn({400, 300, 80, 40}), {}},
        {"a tab picture stretched over the page",
         [&](Document& d) {
             ImageElement& p = d.Tabs[2].Picture;
             p.FileName = Picture(box, "tab.png", 400, 600, 0xFFEEEEEE);
             p.Width = 800;
             p.Height = 600;
         },
         {{K::Resolution, 2}}},
        {"a user icon of 64 x 64", userIcon(64), {{K::Resolution, 0}}},
        {"a user icon of 128 x 128", userIcon(128), {}},
        {"a picture, a tab icon and the music that cannot be read",
         [&](Document& d) {
             PlaceImage(d, 1, 3, QRect(400, 300, 80, 40), box.path("gone.png"));
             d.Tabs[5].Icon = box.path("text.ico"); // there, but no picture
             EXPECT_TRUE(test::WriteAll(d.Tabs[5].Icon.trimNull(), "not a picture"));
             d.Header.BackMusic = box.path("gone.mp3");
         },
         {{K::Missing, 3}, {K::Missing, 5}, {K::Missing, 8}}},
        {"a page with nothing on it", [&](Document& d) { text(d, 4).TabNo = 0; }, {{K::Empty, 4}}},
    };
    const auto speller = OpenUs();
    ASSERT_TRUE(speller);
    for (const Case& c : cases) {
        auto doc = CleanDocument(box);
        c.change(*doc);
        CheckOptions options;
        options.speller = speller.get();
        const auto findings = CheckDocument(*doc, options);
        EXPECT_EQ(KindsAndTabs(findings), c.expected) << c.what;
    }
    // A contrast finding gives both ratios, what the text has cut to one decimal.
    auto light = CleanDocument(box);
    light->Texts[1].FontColor = int32_t(0xFFBBBBBB);
    CheckOptions options;
    options.speller = speller.get();
    const auto findings = CheckDocument(*light, options);
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_TRUE(findings[0].message.endsWith("the text stands out 1.9:1 from what lies under it; "
                                             "at least 4.5:1 is needed to read it"))
        << findings[0].message.toStdString();
}

TEST(Check, TellsWhichWordWhereAndSuggestionsAndTakesPersonalWords) {
    Sandbox box;
    auto doc = CleanDocument(box);
    doc->Texts[3].Text = "Team leader, recieved teh award.";
    const auto speller = OpenUs();
    ASSERT_TRUE(speller);
    CheckOptions options;
    options.speller = speller.get();
    const auto findings = CheckDocument(*doc, options);
    ASSERT_EQ(findings.size(), 2u);
    EXPECT_EQ(findings[0].word, "recieved");
    EXPECT_EQ(findings[0].place, 13);
    EXPECT_EQ(findings[0].objectKind, 2);
    EXPECT_EQ(findings[0].slot, 3);
    EXPECT_EQ(findings[1].word, "teh");

    const struct {
        const char* wrong;
        const char* right;
    } common[] = {
        {"recieve", "receive"}, {"managment", "management"}, {"responsable", "responsible"}};
    for (const auto& c : common) {
        const QStringList s = speller->suggestions(QLatin1String(c.wrong));
        EXPECT_TRUE(s.mid(0, 3).contains(QLatin1String(c.right)))
            << c.wrong << ": " << s.join(QLatin1Char(' ')).toStdString();
    }

    // Personal words are accepted; a missing dictionary is named and the rest still checked.
    doc = CleanDocument(box);
    doc->Texts[1].Text = "Built Zentorix pipelines.";
    CheckOptions byName;
    byName.language = "en_US";
    EXPECT_EQ(KindsAndTabs(CheckDocument(*doc, byName)), (Seen{{FindingKind::Spelling, 1}}));
    byName.personalWords = {"zentorix"};
    EXPECT_TRUE(CheckDocument(*doc, byName).empty());
    byName.language = "xx_YY";
    doc->Texts[2].TabNo = 0;
    const auto missing = CheckDocument(*doc, byName);
    EXPECT_EQ(KindsAndTabs(missing), (Seen{{FindingKind::Spelling, -1}, {FindingKind::Empty, 2}}));
    EXPECT_TRUE(missing[0].message.contains(QLatin1String("xx_YY")));
}

TEST(Check, SpellableWordsLeaveAddressesAndNumbersOut) {
    const struct {
        const char* text;
        QStringList words;
    } cases[] = {
        {"Don't stop", {"Don't", "stop"}},
        {"well-known ‘quoted’ words.", {"well", "known", "quoted", "words"}},
        {"mail me@example.org or see https://x.example/a, www.y.example and z.example/cv.",
         {"mail", "or", "see", "and"}},
        {"3D MP3 2nd 2024 x2 Q3-report", {"report"}},
        {"(see x.example) <me@x.example>", {"see"}},
        {"Ends a sentence.Next", {"Ends", "a"}},
        {"Crème brûlée", {"Crème", "brûlée"}},
        {"Vitara wrote", {"wrote"}},
    };
    const QSet<QString> exempt{"vitara"};
    for (const auto& c : cases) {
        const QString text = QString::fromUtf8(c.text);
        QStringList words;
        for (const WordSpan& w : SpellableWords(text, exempt))
            words.append(text.mid(w.start, w.length));
        EXPECT_EQ(words, c.words) << c.text;
    }
}

TEST(Check, ContrastFollowsTheRelativeLuminanceFormula) {
    const struct {
        QRgb a, b;
        double ratio;
    } pairs[] = {{0xFF000000, 0xFFFFFFFF, 21.0},
                 {0xFF777777, 0xFFFFFFFF, 4.48},
                 {0xFF767676, 0xFFFFFFFF, 4.54},
                 {0xFFFF0000, 0xFFFFFFFF, 4.0},
                 {0xFF336699, 0xFF336699, 1.0}};
    for (const auto& p : pairs)
        EXPECT_NEAR(ContrastRatio(RelativeLuminance(p.a), RelativeLuminance(p.b)), p.ratio, 0.01);
    EXPECT_EQ(Over(0x80000000, 0xFFFFFFFF), qRgb(127, 127, 127));
    const struct {
        int points, style;
        double needed;
    } sizes[] = {{12, 0, 4.5}, {17, 0, 4.5}, {18, 0, 3.0},
                 {14, 1, 3.0}, {13, 1, 4.5}, {14, 2, 4.5}};
    for (const auto& s : sizes)
        EXPECT_EQ(RequiredContrast(s.points, s.style), s.needed) << s.points << " " << s.style;
}

TEST(CheckCli, PrintsFindingsForPeopleOrAsJsonWithTheExitStatus) {
    Sandbox box;
    // The personal dictionary lives in the user's settings: keep the test's apart.
    qputenv("XDG_CONFIG_HOME", box.path("config").toUtf8());
    auto doc = CleanDocument(box);
    ASSERT_TRUE(doc->Tabs[3].Name.text() == QLatin1String("Education"));
    doc->Texts[3].Text = "Graduated in managment.";
    doc->Texts[3].Name = "Degree";
    const QString bad = box.path("bad.qds"), clean = box.path("clean.qds");
    ASSERT_TRUE(SaveScript(*doc, bad));
    ASSERT_TRUE(SaveScript(*CleanDocument(box), clean));

    QByteArray out, err;
    EXPECT_EQ(RunCli({"check", bad, "--lang", "en_US"}, &out, &err), 1) << err.toStdString();
    EXPECT_TRUE(out.startsWith("Education, Degree: \"managment\" is not in the en_US dictionary "
                               "(try: management"))
        << out.toStdString();

    ASSERT_EQ(RunCli({"check", bad, "--json", "--lang", "en_US"}, &out), 1);
    // The keys come in the order people read them.
    qsizetype last = -1;
    for (const char* key : {"kind", "tab", "object", "message", "word", "suggestions"}) {
        const qsizetype at = out.indexOf(QByteArray("\"") + key + "\":");
        EXPECT_GT(at, last) << key;
        last = at;
    }
    const QJsonArray list = QJsonDocument::fromJson(out).object().value("findings").toArray();
    ASSERT_EQ(list.size(), 1);
    const QJsonObject f = list[0].toObject();
    EXPECT_EQ(f.value("kind").toString(), "spelling");
    EXPECT_EQ(f.value("tab").toInt(), 3);
    EXPECT_EQ(f.value("word").toString(), "managment");
    EXPECT_EQ(f.value("suggestions").toArray().first().toString(), "management");

    EXPECT_EQ(RunCli({"check", clean, "--lang", "en_US"}, &out), 0);
    EXPECT_EQ(out, "Nothing to fix.\n");

    EXPECT_EQ(RunCli({"check", clean, "--lang", "xx_YY"}, &out, &err), 1);
    EXPECT_TRUE(out.contains("No spelling dictionary for \"xx_YY\"")) << out.toStdString();
    EXPECT_EQ(RunCli({"check"}, &out, &err), 2);
    EXPECT_EQ(RunCli({"check", clean, "--lang"}, &out, &err), 2);
    EXPECT_EQ(RunCli({"check", clean, "--wrong"}, &out, &err), 2);
    EXPECT_EQ(RunCli({"check", box.path("none.qds")}, &out, &err), 1);
    EXPECT_TRUE(err.contains("cannot open"));
}

TEST(Check, TheStatusAfterAnOutputAddsWhatRemains) {
    const struct {
        const char* said;
        size_t remaining;
        const char* expected;
    } cases[] = {
        {"Wrote cv.pdf", 0, "Wrote cv.pdf"},
        {"Wrote cv.pdf", 3,
         "Wrote cv.pdf; 3 findings remain: Edit > Check Résumé... (F7) lists them"},
        {"Ready", 1, "1 finding remains: Edit > Check Résumé... (F7) lists them"},
        {"", 2, "2 findings remain: Edit > Check Résumé... (F7) lists them"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(StatusAfterOutput(QString::fromUtf8(c.said), c.remaining),
                  QString::fromUtf8(c.expected))
            << c.said << " " << c.remaining;
}
