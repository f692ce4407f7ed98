// zentor-player [PACKAGE] [--info] [--export DIR] [--frame MS OUT.png]
// Without PACKAGE it reads the package inside its own file, after the player's bytes.

#include "PlayerWindow.h"
#include "QtMusicOut.h"

#include "generate/PackageReader.h"
#include "model/ProcessContext.h"
#include "render/ResImages.h"
#include "show/MusicOut.h"
#include "show/ShowPictures.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QScreen>

#include <cstdio>
#include <memory>

using namespace zentor;

namespace {

int fail(const QString& message, int status = 1) {
    std::fprintf(stderr, "zentor-player: %s\n", qPrintable(message));
    return status;
}

struct Options {
    QString package;
    QString exportDir;
    QString frameOut;
    qint64 frameMs = -1;
    bool info = false;
    bool help = false;
    QString error;
};

Options parse(int argc, char** argv) {
    Options o;
    for (int i = 1; i < argc; ++i) {
        const QString a = QString::fromLocal8Bit(argv[i]);
        if (a == QLatin1String("--info"))
            o.info = true;
        else if (a == QLatin1String("--export") && i + 1 < argc)
            o.exportDir = QString::fromLocal8Bit(argv[++i]);
        else if (a == QLatin1String("--frame") && i + 2 < argc) {
            bool ok = false;
            o.frameMs = QString::fromLocal8Bit(argv[++i]).toLongLong(&ok);
            o.frameOut = QString::fromLocal8Bit(argv[++i]);
            if (!ok || o.frameMs < 0)
                o.error = QStringLiteral("--frame takes a time in ms (0 or more) and a PNG path");
        } else if (a == QLatin1String("--help") || a == QLatin1String("-h"))
            o.help = true;
        else if (a.startsWith(QLatin1String("--")) || !o.package.isEmpty())
            o.error = QStringLiteral("unexpected argument \"%1\"").arg(a);
        else
            o.package = a;
    }
    return o;
}

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

// Writes what the player would show and play: the page pictures and the music.
int exportTo(const PackageContents& package, const QString& dirPath) {
    const QDir dir(dirPath);
    if (!QDir().mkpath(dir.path()))
        return fail(QStringLiteral("cannot create %1").arg(dir.path()));
    for (int entry = Package::MusicEntry; entry < Package::EntryCount; ++entry) {
        const QByteArray bytes = package.blob(entry);
        if (bytes.isEmpty())
            continue;
        QFile out(dir.filePath(BlobFileName(entry, bytes)));
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            out.write(bytes) != bytes.size())
            return fail(QStringLiteral("cannot write %1").arg(out.fileName()));
    }
    return 0;
}

// The built-in background a package without its own shows on its home page.
QByteArray DefaultBackground() {
    QFile file(QStringLiteral(":/home/bakpic.jpg"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Writes what the window shows `ms` after opening with no input, at the frame's size.
int writeFrame(const ShowPictures& pictures, const PackageContents& package, qint64 ms,
               const QString& out) {
    const show::ShowModel model(show::ShowSettingsOf(package.Info.Header), 0, pictures.showOrder());
    const QImage frame = PaintShowFrame(pictures, model.at(ms), pictures.frame());
    if (!frame.save(out, "PNG"))
        return fail(QStringLiteral("cannot write %1").arg(out));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const Options options = parse(argc, argv);
    const bool headless = options.info || !options.exportDir.isEmpty() || options.frameMs >= 0 ||
                          options.help || !options.error.isEmpty();
    if (headless || !hasDisplay())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    PrepareRuntimeDir();
    KeepFreedMemory();
    QGuiApplication app(argc, argv);
    if (options.help || !options.error.isEmpty()) {
        if (!options.error.isEmpty())
            fail(options.error);
        std::fputs("usage: zentor-player [PACKAGE] [--info] [--export DIR] [--frame MS OUT.png]\n",
                   stderr);
        return options.help ? 0 : 2;
    }

    const bool own = options.package.isEmpty();
    const QString path = own ? QCoreApplication::applicationFilePath() : options.package;
    PackageContents package;
    QString error;
    if (!ReadPackage(path, own ? PackageForm::SelfRun : PackageForm::Detect, package, error))
        return fail(error);
    if (!package.Complete)
        return fail(own ? QStringLiteral("no résumé inside this program; name a package to show")
                        : QStringLiteral("%1 is not a package: %2")
                              .arg(path, package.Problems.join(QStringLiteral("; "))));
    for (const QString& problem : package.Problems)
        fail(QStringLiteral("warning: %1").arg(problem));

    if (options.info) {
        const QByteArray text = QJsonDocument(PackageToJson(package)).toJson();
        std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    }
    if (!options.exportDir.isEmpty())
        if (const int status = exportTo(package, options.exportDir))
            return status;
    // The show's pictures are decoded only when something will be drawn.
    const bool draws = options.frameMs >= 0 || !headless;
    if (!draws)
        return package.Problems.isEmpty() ? 0 : 1;
    const ResImages res = ResImages::load();
    const ShowPictures pictures(package, res, DefaultBackground());
    if (options.frameMs >= 0)
        if (const int status = writeFrame(pictures, package, options.frameMs, options.frameOut))
            return status;
    if (headless)
        return package.Problems.isEmpty() ? 0 : 1;
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        return fail(QStringLiteral("no display to show the résumé on; use --info or --export DIR"));

    // Music that cannot be played leaves the show silent, never stopped.
    std::unique_ptr<QtMusicOut> music;
    PlayerWindow window(pictures, show::ShowSettingsOf(package.Info.Header), [&]() -> MusicOut* {
        music = std::make_unique<QtMusicOut>();
        StartMusic(*music, package);
        return music.get();
    });
    // Full screen needs a window manager's help; the geometry makes it fill without one.
    window.setGeometry(window.screen()->geometry());
    window.showFullScreen();
    return app.exec();
}
