#pragma once

#include <QString>
#include <QStringList>

/// Finds what a process runs where its executable is an interpreter or a launcher.
namespace LaunchedProgram {

/// Returns whether a program of this file name, in any version, runs scripts ("node", "python3.11", "bash").
bool isInterpreter(QStringView fileName);

/// The meaning of a command line.
struct Reading {
    QString program;         ///< the script, module, package, image or command, else the executable
    bool isScript = false;   ///< `program` is the path of a script as given
    bool isLauncher = false; ///< this process waits for the program, which has its own
};

/// Reads a command line, or a title in its place. `arguments` begins with the program's own name, which
/// replaces an empty `executable`.
Reading read(const QString& executable, const QStringList& arguments);

} // namespace LaunchedProgram
