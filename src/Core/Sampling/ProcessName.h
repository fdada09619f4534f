#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

/// Finds the name of a process on screen.
namespace ProcessName {

/// The answers of the system about a process.
struct Facts {
    QByteArray shortName;   ///< of the kernel: at most 15 bytes; the program can change it
    QString executablePath; ///< empty when unreadable
    QStringList arguments;  ///< the first is the program's own name
    QString script;         ///< of an interpreter; empty for other programs
};

/// Returns the name of the executable's application in the menu, empty without one. Called only for unknown
/// child processes of Chromium, Electron or Firefox.
using ApplicationName = std::function<QString(const QString& executablePath)>;

/// Returns the whole short name where the program has not changed it, else the executable's last component.
/// Returns application and role for child processes of Chromium, Electron or Firefox: "Chromium Helper
/// (Renderer)". Returns an empty name where all facts are empty.
QString of(const Facts& facts, const ApplicationName& applicationName);

} // namespace ProcessName
