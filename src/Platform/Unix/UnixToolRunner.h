#pragma once

#include "Platform/ToolRunner.h"

/// Runs programs as children of low CPU and I/O priority. Output that nobody asked for is dropped, and so is
/// standard error but for the first line of our own tools. A child that outlives `terminateAfter`, counted
/// from its launch, or is stopped gets SIGTERM and, a second later, SIGKILL; after one more second it counts
/// as crashed, come what may. When this program ends, its children end with it, and so do theirs. Needs a
/// running event loop.
class UnixToolRunner : public ToolRunner {
public:
    /// `toolsFolder` holds our own programs; tests name another one.
    explicit UnixToolRunner(QString toolsFolder = ownToolsFolder());

    /// A program that cannot be launched answers at once.
    QCoro::Task<ToolResult> run(ToolRequest request) override;

    /// The file that answers for a launch path: one of our own for the tools that Linux lacks, otherwise the
    /// path as it stands.
    QString programFor(const QString& launchPath) const;

    /// Where our own programs are, found from the folder of the running program: as installed, or in the
    /// build tree. Not the environment, which others could set.
    static QString ownToolsFolder();

private:
    QString m_toolsFolder;
};
