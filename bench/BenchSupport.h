#pragma once

#include "edit/Prompter.h"
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

// Answers every question with No and every file or colour dialog with nothing.
class QuietPrompter : public Prompter {
public:
    Answer ask(const QString&, const QString&, Buttons, Icon, Answer) override {
        return Answer::No;
    }
    QString chooseFile(bool, const QString&, const QString&, const QString&, const QString&,
                       const QString&) override {
        return QString();
    }
    uint32_t chooseColor() override { return 0; }
};

// Benchmarks that paint need an application object; call first in main.
void InitGui(int& argc, char** argv);

// The whole main of a benchmark program: the application object, then every benchmark.
int RunBenchmarks(int argc, char** argv);

} // namespace zentor::bench
