#pragma once

#include "Platform/Freedesktop/FreedesktopRunningProgram.h"

#include <QDBusConnection>
#include <QList>
#include <QString>
#include <QStringList>

namespace Tools {

/// Finds an application's names on the session bus and tells it to quit there. Calls start no services.
class SessionBus {
public:
    explicit SessionBus(const QDBusConnection& bus = FreedesktopRunningProgram::sessionBus());

    /// Returns the well-known names of the processes.
    QStringList namesOf(const QList<qint32>& pids);
    /// Activates the action "quit" of a GTK application, which may prompt. Returns false if it has none.
    bool activateQuit(const QString& name);
    /// Calls the slot "quit" of a Qt application, which may end without a prompt. Returns false if it has
    /// none.
    bool callQuit(const QString& name);

private:
    QDBusConnection m_bus;
};

} // namespace Tools
