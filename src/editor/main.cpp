#include "editor/FrmMain.h"
#include "editor/QtPrompter.h"
#include "model/DefaultDocument.h"
#include "model/ProcessContext.h"
#include "render/ResImages.h"

#include <QApplication>

#include <memory>

using namespace zentor;

int main(int argc, char** argv) {
    PrepareRuntimeDir();
    KeepFreedMemory();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vitara Zentor"));
    QApplication::setOrganizationName(QStringLiteral("Vitara")); // where the recent files live

    // A work folder of its own: editors running side by side never share or remove each
    // other's recovery file or package; one left by a killed editor is offered at the next start.
    ProcessContext ctx =
        ProcessContext::createPrivate(QApplication::applicationDirPath(), QStringLiteral("zentor"));
    ctx.CommandLine = CommandLineFromArguments(QApplication::arguments().mid(1));
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, ctx);

    const ResImages res = ResImages::load();
    QtPrompter prompter;
    int status = 0;
    {
        FrmMain window(*doc, ctx, prompter, res);
        prompter.setOwner(&window);
        // Shown first so the window is up at once; the page is painted before the first expose.
        window.show();
        window.formLoad();
        status = app.exec();
    }
    // Whatever ended the run, nothing is left in the work folder.
    ctx.removeWorkFolder();
    return status;
}
