#pragma once

#include "edit/Prompter.h"
#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QString>
#include <QStringList>

namespace zentor {

// Unsaved work is kept in this run's own work folder as recovery-<pid>.qds (the project's own
// path beside it in recovery-<pid>.path). A run that did not end normally leaves its folder
// behind, told from a live run's by the pid in the folder's name.
QString RecoveryFile(const ProcessContext& ctx, qint64 pid);

// Each minute: a changed document is written to this run's recovery file (atomically, so a
// crash mid-write leaves the previous one); a saved one removes it. True when written.
bool Autosave(const Document& doc, const ProcessContext& ctx);
// A normal exit: this run leaves nothing to recover.
void RemoveRecovery(const ProcessContext& ctx);

// Recovery files in the work folders that runs of ctx.Program which are gone left in
// ctx.RunsFolder, newest first.
QStringList LeftBehindRecovery(const ProcessContext& ctx);

// At start: when a run that is gone left unsaved work, asks whether to restore it. Yes
// replaces `doc` by that work, under its project path and marked changed. Whatever the
// answer, the work folders of runs that are gone are removed then, never a live run's.
// True when restored.
bool OfferRecovery(Document& doc, const ProcessContext& ctx, Prompter& prompter);

} // namespace zentor
