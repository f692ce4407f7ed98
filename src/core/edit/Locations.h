#pragma once

#include <QString>

namespace zentor {

struct Document;
struct ProcessContext;

// The player beside the editor's program.
QString PlayerProgram(const ProcessContext& ctx);

// Where Play Résumé writes its package: the work folder, named after the project.
QString PlayPackagePath(const ProcessContext& ctx, const Document& doc);

// The user manual: beside the program in a build, under share/doc in an installation.
// Empty when neither is there.
QString ManualPath(const ProcessContext& ctx);

} // namespace zentor
