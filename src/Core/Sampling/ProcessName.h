#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

/// What a person would call a process.
namespace ProcessName {

/// What the system says of a process.
struct Facts {
    QByteArray shortName; ///< as the kernel keeps it: of 15 bytes at most, and open to change by the program
    QString executablePath; ///< empty when unreadable
    QStringList arguments;  ///< the first is the program's own name
    QString script;         ///< what an interpreter runs; empty for other programs
};

/// The name in the menu of the application that the executable is of; empty when there is none. Asked only
/// for the child processes of browsers and the like that this file does not know itself.
using ApplicationName = std::function<QString(const QString& executablePath)>;

/// The short name where it belongs to the program, whole; otherwise the executable's last component. The
/// child processes of programs built on Chromium, Electron or Firefox are called by application and role:
/// "Chromium Helper (Renderer)". Empty where the system says nothing.
QString of(const Facts& facts, const ApplicationName& applicationName);

} // namespace ProcessName
