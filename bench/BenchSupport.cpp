#include "BenchSupport.h"

#include <QGuiApplication>

namespace zentor::bench {

Workspace::Workspace() : ctx(ProcessContext::create(QStringLiteral("."), dir.path())) {}

void InitGui(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    PrepareRuntimeDir();
    static QGuiApplication* app = new QGuiApplication(argc, argv);
    (void)app;
}

} // namespace zentor::bench
