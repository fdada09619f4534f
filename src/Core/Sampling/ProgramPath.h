#pragma once

#include <QString>
#include <QStringView>

/// Parts of a program: a path, a module or a package.
namespace ProgramPath {

/// Returns the text after the last slash, the whole text without one.
QStringView lastComponent(QStringView path);

/// Returns the last component without the suffix of a script, such as ".js" or ".py".
QStringView scriptName(QStringView path);

/// Returns the package of a path, the folder in the last "node_modules" or "site-packages", or of a package's
/// name. The "@scope/" and the version ("@1.2") are left out. Returns an empty text without a package.
QStringView packageName(QStringView program);

/// Returns `path` without the user's home folder, or the library folder of this architecture
/// ("/usr/lib/x86_64-linux-gnu"), in front. The slash after it stays.
QStringView withoutPrefix(QStringView path);

/// Returns the folder with "~" for the user's home folder.
QString withTilde(const QString& folder);

} // namespace ProgramPath
