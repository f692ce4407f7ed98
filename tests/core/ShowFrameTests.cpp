#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "generate/PackageReader.h"
#include "generate/ResumeGenerator.h"
#include "render/ResImages.h"
#include "render/WorkspacePainter.h"
#include "show/MusicOut.h"
#include "show/ShowPictures.h"

#include "PlayerStub.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace zentor::test {
namespace {

using show::HomePicture;
using show::ScreenState;

struct PlayCall {
    QByteArray bytes;
    double volume = -1;
    bool loop = false;
};

class FakeMusic : public MusicOut {
public:
    bool play(const QByteArray& bytes, double volume, bool loop) override {
        calls.push_back({bytes, volume, loop});
        return true;
    }
    void setMuted(bool) override {}
    std::vector<PlayCall> calls;
};

QRgb PageColour(int page) {
    return qRgb(page * 30, 255 - page * 30, 128); // as FakePictures renders page `page`
}

// Pages of FakePictures' colours with a black mark in the top right corner, so that they
// hold something; the pages in `empty` come out plain white.
class MarkedPages : public FakePictures {
public:
    std::optional<QByteArray> renderPage(const Document& doc, int page) override {
        QImage image(doc.Header.FrameWidth, doc.Header.FrameHeight, QImage::Format_RGB32);
        image.fill(empty.contains(page) ? qRgb(255, 255, 255) : PageColour(page));
        if (!empty.contains(page))
            QPainter(&image).fillRect(image.width() - 8, 0, 8, 8, Qt::black);
        return EncodeJpeg(image);
    }
    QList<int> empty;
};

// The frame with the contact block painted over in one colour, for comparing the rest.
QImage WithoutContacts(QImage img, const show::HomeLayout& contacts) {
    const show::IconRect& b = contacts.Block;
    QPainter p(&img);
    p.fillRect(QRect(b.Left, b.Top, b.Right - b.Left, b.Bottom - b.Top), Qt::magenta);
    return img.convertToFormat(QImage::Format_RGB32);
}

class ShowFrameTest : public ::testing::Test {
protected:
    void SetUp() override {
        doc->Header.BackPicture.clearToNul(); // the built-in background on both sides
        doc->Profile.FirstName = QStringLiteral("Ada");
        doc->Profile.LastName = QStringLiteral("Byron");
        doc->Profile.Email = QStringLiteral("ada@example.org");
        doc->Profile.Website = QStringLiteral("www.example.org");
        doc->Profile.PostCode = QStringLiteral("N1 9GU");
        for (int tab = 2; tab <= 8; ++tab) {
            const QString icon = box.path(QStringLiteral("icon%1.png").arg(tab));
            ASSERT_TRUE(WriteAll(icon, PictureBytes(40 + tab, 30, qRgb(tab * 25, 90, 200 - tab))));
            doc->Tabs[size_t(tab)].Icon = icon;
        }
        gen.setPlayer(PlayerStub());
    }
    PackageContents generate(const QString& name = QStringLiteral("cv.qdv")) {
        EXPECT_EQ(gen.writePackage(*doc, box.path(name), name.endsWith(QLatin1String(".exe"))),
                  ResumeGenerator::Outcome::Written);
        return ParsePackage(ReadAll(box.path(name)), PackageForm::Detect);
    }
    QByteArray defaultBack() const { return ReadAll(box.ctx.defaultBackPicture()); }

    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    MarkedPages pictures;
    ScriptedPrompter prompter;
    ResumeGenerator gen{box.ctx, prompter, pictures};
    ResImages res = ResImages::load();
};

TEST_F(ShowFrameTest, HomePageIsTheEditorsProfilePageWithTheContacts) {
    const PackageContents package = generate();
    const ShowPictures pics(package, res, defaultBack());
    ASSERT_EQ(pics.contacts().Lines.size(), 3u);
    for (int hover : {0, 3, 8}) {
        SCOPED_TRACE(hover);
        const QImage home = PaintShowFrame(pics, ScreenState{}, QSize(800, 600), hover);
        const QImage editor = PaintWorkspace(*doc, 0, hover, res, box.ctx);
        ASSERT_EQ(home.size(), editor.size());
        EXPECT_EQ(WithoutContacts(home, pics.contacts()), WithoutContacts(editor, pics.contacts()));
        // The contacts are there: white text inside the block, none in the editor.
        const show::IconRect& b = pics.contacts().Block;
        const QRect block(b.Left, b.Top, b.Right - b.Left, b.Bottom - b.Top);
        EXPECT_GT(CountPixels(home, qRgb(255, 255, 255), block), 20);
        EXPECT_EQ(
            CountPixels(editor.convertToFormat(QImage::Format_RGB32), qRgb(255, 255, 255), block),
            0);
    }
}

TEST_F(ShowFrameTest, FramesMixFadesAndKeepTheFrameShape) {
    doc->Header.BackColor = 0x00332211; // 0x00BBGGRR
    const ShowPictures pics(generate(), res, defaultBack());
    const auto mix = [](QRgb a, QRgb b, double t) {
        const auto m = [t](int x, int y) { return int(x + (y - x) * t + 0.5); };
        return qRgb(m(qRed(a), qRed(b)), m(qGreen(a), qGreen(b)), m(qBlue(a), qBlue(b)));
    };
    const struct {
        ScreenState state;
        QSize size;
        QPoint at;
        QRgb expected;
    } cases[] = {
        {{17, HomePicture, 1.0}, {800, 600}, {5, 5}, PageColour(7)},
        {{16, 17, 0.25}, {800, 600}, {400, 100}, mix(PageColour(7), PageColour(6), 0.25)},
        {{16, 17, 0.75}, {800, 600}, {10, 590}, mix(PageColour(7), PageColour(6), 0.75)},
        {{18, 11, 0.0}, {800, 600}, {10, 590}, PageColour(1)},
        // A wider surface: the frame in the middle, the back colour beside it.
        {{18, 18, 1.0}, {1000, 600}, {50, 300}, qRgb(0x11, 0x22, 0x33)},
        {{18, 18, 1.0}, {1000, 600}, {500, 300}, PageColour(8)},
        {{11, 12, 0.5}, {400, 600}, {200, 100}, qRgb(0x11, 0x22, 0x33)},
        {{11, 12, 0.5}, {400, 600}, {200, 300}, mix(PageColour(2), PageColour(1), 0.5)},
    };
    for (const auto& c : cases) {
        const QImage frame = PaintShowFrame(pics, c.state, c.size);
        ASSERT_EQ(frame.size(), c.size);
        EXPECT_TRUE(Near(frame.pixel(c.at), c.expected, 4))
            << c.state.Picture << " over " << c.state.Previous << " at " << c.state.Alpha << ": "
            << std::hex << frame.pixel(c.at) << " vs " << c.expected;
    }
}

TEST_F(ShowFrameTest, MusicStartsAsTheHeaderSays) {
    const QString song = box.path(QStringLiteral("song.mp3"));
    const QByteArray bytes = QByteArray("ID3\3\0") + QByteArray(500, 'a');
    ASSERT_TRUE(WriteAll(song, bytes));
    const struct {
        bool music;
        int volume, repeat;
        double expectedVolume;
        bool expectedLoop;
    } cases[] = {{true, 500, 1, 0.5, true},
                 {true, 1000, 0, 1.0, false},
                 {true, 0, 1, 0.0, true},
                 {false, 500, 1, 0, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.volume);
        if (c.music)
            doc->Header.BackMusic = song;
        else
            doc->Header.BackMusic.clearToNul();
        doc->Header.MusicVolume = c.volume;
        doc->Header.AutoRepeat = c.repeat;
        FakeMusic out;
        EXPECT_EQ(StartMusic(out, generate()), c.music);
        ASSERT_EQ(out.calls.size(), c.music ? 1u : 0u);
        if (!c.music)
            continue;
        EXPECT_EQ(out.calls[0].bytes, bytes);
        EXPECT_DOUBLE_EQ(out.calls[0].volume, c.expectedVolume);
        EXPECT_EQ(out.calls[0].loop, c.expectedLoop);
    }
    // A music entry whose file could not be read carries no bytes: silence, no start.
    doc->Header.BackMusic = box.path(QStringLiteral("gone.mp3"));
    FakeMusic out;
    EXPECT_FALSE(StartMusic(out, generate()));
    EXPECT_TRUE(out.calls.empty());
}

TEST_F(ShowFrameTest, PlayerFrameShowsWhatTheWindowWould) {
    const struct {
        const char* name;
        int asRun;
        int ms;
        int page; // 0: the home page
    } cases[] = {{"home.exe", 0, 0, 0},
                 {"home.qdv", 0, 90000, 0},
                 {"run.exe", 1, 3000, 7},
                 {"run.qdv", 1, 7000 + 6000, 6},
                 // Page 6 holds nothing: the show passes from page 7 to page 5.
                 {"skip.qdv", 1, 7000 + 6000, 5}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        doc->Header.ShowAsRun = c.asRun;
        pictures.empty =
            QString::fromLatin1(c.name).startsWith(QLatin1String("skip")) ? QList{6} : QList<int>{};
        doc->Header.KeepOnTime = 7000;
        const PackageContents package = generate(QLatin1String(c.name));
        const QString path = box.path(QLatin1String(c.name));
        const QString png = path + QStringLiteral(".png");
        QStringList args{QStringLiteral("--frame"), QString::number(c.ms), png};
        if (!path.endsWith(QLatin1String(".exe")))
            args.prepend(path);
        QByteArray err;
        ASSERT_EQ(RunProcess(path.endsWith(QLatin1String(".exe"))
                                 ? path
                                 : QStringLiteral(ZENTOR_PLAYER_PATH),
                             args, nullptr, &err, {QStringLiteral("DISPLAY")}),
                  0)
            << err.toStdString();
        const QImage frame = QImage(png).convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(frame.size(), QSize(800, 600));
        if (c.page == 0) {
            const ShowPictures pics(package, res, defaultBack());
            EXPECT_EQ(WithoutContacts(frame, pics.contacts()),
                      WithoutContacts(PaintWorkspace(*doc, 0, 0, res, box.ctx), pics.contacts()));
        } else {
            EXPECT_TRUE(Near(frame.pixel(400, 300), PageColour(c.page), 4))
                << std::hex << frame.pixel(400, 300);
        }
    }
}

} // namespace
} // namespace zentor::test
