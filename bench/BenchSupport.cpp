#include "BenchSupport.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

namespace zentor::bench {

Workspace::Workspace() : ctx(ProcessContext::create(QStringLiteral("."), dir.path())) {}

void InitGui(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    PrepareRuntimeDir();
    KeepFreedMemory(); // as every program does
    static QGuiApplication* app = new QGuiApplication(argc, argv);
    (void)app;
}

int RunBenchmarks(int argc, char** argv) {
    InitGui(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

} // namespace zentor::bench
