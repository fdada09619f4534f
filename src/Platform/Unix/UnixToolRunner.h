#pragma once

#include "Platform/ToolRunner.h"

/// Runs programs as child processes of low CPU and I/O priority. Output that was not requested is dropped, as
/// is standard error except the first line of our own tools. A child that exceeds its timeout, counted from
/// its launch or its last line, or is stopped gets SIGTERM, and SIGKILL a second later; after one more second
/// it counts as crashed. Children and their children end with this program. Needs a running event loop.
class UnixToolRunner : public ToolRunner {
public:
    /// `toolsFolder` contains our own programs.
    explicit UnixToolRunner(QString toolsFolder = ownToolsFolder());

    QCoro::Task<ToolResult> run(ToolRequest request) override;

    /// Returns the program for a launch path: one of our own for tools that Linux lacks, and for `du` where
    /// ours is installed, which is faster; otherwise the path.
    QString programFor(const QString& launchPath) const;

    /// Returns the folder of our own programs, relative to the running program as installed or in the build
    /// tree. The environment, which others could set, does not change it.
    static QString ownToolsFolder();

private:
    QString m_toolsFolder;
};
