#pragma once

#include <QString>
#include <QStringList>

namespace zentor {

// What the process knows about where it runs. Made once at start-up and handed to
// whatever needs it; nothing here is global.
struct ProcessContext {
    QString AppPath;       // the program's folder, ending in '/'
    QString WorkFolder;    // system temp + "Zentor/", or a run's private folder; ending in '/'
    QString TempImagePath; // WorkFolder + "tempgen.jpg"
    qint64 PlayerStubSize = 524288;
    QString CommandLine; // the project path given on the command line, quotes removed
    // For a private work folder: the program whose runs keep theirs side by side in
    // RunsFolder, so that one run can find what a run that was killed left there.
    QString Program;
    QString RunsFolder;

    // Builds the context for a program in appDir, with the work folder under tempDir
    // (the system temp folder when empty). Creates the work folder.
    static ProcessContext create(const QString& appDir, const QString& tempDir = QString());
    // The same with a work folder of this run's own ("<program>-<pid>-XXXXXX" under tempDir),
    // which stays until removeWorkFolder.
    static ProcessContext createPrivate(const QString& appDir, const QString& program,
                                        const QString& tempDir = QString());

    // The default background picture beside the program.
    QString defaultBackPicture() const { return AppPath + QStringLiteral("Res/bakpic.jpg"); }

    // Creates the work folder again if something removed it; returns false if it cannot.
    bool ensureWorkFolder() const;
    // Removes the work folder and everything in it (at exit); errors are ignored.
    void removeWorkFolder() const;
};

// A run's private work folder is named after its process ("zentor-cli-<pid>-XXXXXX" under
// tempDir), so that a later run can tell a folder whose owner was killed from a live one.
QString PrivateWorkTemplate(const QString& tempDir, const QString& program);
// The private work folders of `program` under tempDir whose process is gone.
QStringList StaleWorkFolders(const QString& tempDir, const QString& program);
// Removes every private work folder of `program` under tempDir whose process is gone;
// returns how many it removed. Folders of live processes are left alone.
int RemoveStaleWorkFolders(const QString& tempDir, const QString& program);

// True when no process `pid` runs any more (a live one, or one not ours to ask about, is not gone).
bool ProcessGone(qint64 pid);

// Qt warns on every start when XDG_RUNTIME_DIR is unset (as under CI): gives the process a
// private one first. Call before creating the application object.
void PrepareRuntimeDir();

// Keeps freed memory in the heap for reuse instead of handing it back at once. Pictures are
// decoded, scaled and compressed into buffers of megabytes that are freed and asked for
// again moments later; memory handed back returns a page fault at a time, and on a virtual
// machine a fault costs more than the copy it serves. Called once at start.
void KeepFreedMemory();

// The command-line rule: the arguments after the program name joined by single spaces;
// then a trailing double quote and after it a leading one are removed.
QString CommandLineFromArguments(const QStringList& argsWithoutProgram);

} // namespace zentor
