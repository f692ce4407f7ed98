// Turns the user manual's Markdown into the HTML page installed with the program.
// Usage: zentor-manual-html IN.md OUT.html

#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextDocument>

#include <cstdio>

int main(int argc, char** argv) {
    // Runs during the build, where there is no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir runtime; // Qt warns without one, as on build machines
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    QGuiApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: zentor-manual-html IN.md OUT.html\n");
        return 2;
    }
    QFile in(QString::fromLocal8Bit(argv[1]));
    if (!in.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "zentor-manual-html: cannot read %s\n", argv[1]);
        return 1;
    }
    const QString markdown = QString::fromUtf8(in.readAll());
    QTextDocument doc;
    doc.setMarkdown(markdown);
    // The page's title is the manual's first heading.
    doc.setMetaInformation(
        QTextDocument::DocumentTitle,
        markdown.section(QLatin1Char('\n'), 0, 0).remove(QLatin1Char('#')).trimmed());
    QString html = doc.toHtml();
    // A readable column in any browser, in the reader's own font size: the body's fixed
    // size from toHtml would win over it.
    html.replace(QRegularExpression(QStringLiteral("<body style=\"[^\"]*\">")),
                 QStringLiteral("<body>"));
    html.replace(QStringLiteral("</head>"),
                 QStringLiteral("<style>body{max-width:46em;margin:2em auto;padding:0 1em;"
                                "font-family:sans-serif;line-height:1.4}</style></head>"));
    QSaveFile out(QString::fromLocal8Bit(argv[2]));
    if (!out.open(QIODevice::WriteOnly) || out.write(html.toUtf8()) < 0 || !out.commit()) {
        std::fprintf(stderr, "zentor-manual-html: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
