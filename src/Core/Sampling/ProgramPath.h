#pragma once

#include <QString>
#include <QStringView>

/// Parts of the text that says what a process runs: a path, a module or a package.
namespace ProgramPath {

/// What stands behind the last slash; the whole text without one.
QStringView lastComponent(QStringView path);

/// The last component without the ending of a script (".js", ".mjs", ".cjs", ".ts", ".py", ".sh", ".rb",
/// ".pl").
QStringView scriptName(QStringView path);

/// The package that a path goes through: the folder behind the last "node_modules" or "site-packages",
/// without its
/// "@scope/"; of a package's own name likewise what follows the scope, without a version ("@1.2"). Empty when
/// there is none.
QStringView packageName(QStringView program);

/// `path` without what says nothing of the program: the user's home folder and the folder of libraries of
/// this architecture ("/usr/lib/x86_64-linux-gnu") are taken off its front, their slash stays.
QStringView withoutPrefix(QStringView path);

/// As a shell shows a folder: "~" for the user's home folder.
QString withTilde(const QString& folder);

} // namespace ProgramPath
