#pragma once

#include <QString>
#include <QStringList>

/// What a process really runs, where its executable only reads a script or starts something else.
namespace LaunchedProgram {

/// Whether a program of this file name runs scripts ("node", "python3.11", "bash"), in any version of it.
bool isInterpreter(QStringView fileName);

/// What a command line says.
struct Reading {
    QString program; ///< the script, module, package, image or command; the executable where there is none
    bool isScript = false;   ///< `program` is the path of a script, as it was given
    bool isLauncher = false; ///< the program becomes a process of its own, for which this one waits
};

/// `arguments` begins with the program's own name; a title that replaced them is understood as well.
/// An `executable` that cannot be read is empty; the name among the arguments stands for it.
Reading read(const QString& executable, const QStringList& arguments);

} // namespace LaunchedProgram
