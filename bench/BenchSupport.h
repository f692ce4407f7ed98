#pragma once

#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QTemporaryDir>

#include <memory>

namespace zentor::bench {

// A temporary folder and process context shared by one benchmark program.
struct Workspace {
    QTemporaryDir dir;
    ProcessContext ctx;
    Workspace();
    QString path(const QString& name) const { return dir.filePath(name); }
};

// Benchmarks that paint need an application object; call first in main.
void InitGui(int& argc, char** argv);

// The whole main of a benchmark program: the application object, then every benchmark.
int RunBenchmarks(int argc, char** argv);

} // namespace zentor::bench
