#pragma once

#include <QDBusConnection>
#include <QList>
#include <QString>
#include <QStringList>

namespace Tools {

/// The session's bus, asked on behalf of one application: who of its processes has a name there, and which of
/// those can be told to quit. Nothing is started by asking.
class SessionBus {
public:
    explicit SessionBus(const QDBusConnection& bus = running());

    /// The names, unique ones aside, that one of the processes has.
    QStringList namesOf(const QList<qint32>& pids);
    /// The action "quit" of an application in the manner of GTK; false where it has none. It may ask back.
    bool activateQuit(const QString& name);
    /// The slot "quit" of a Qt or KDE application; false where it has none. It may end without asking.
    bool callQuit(const QString& name);

    /// The bus of this session; one that is not connected where none runs. None is started for it.
    static QDBusConnection running();

private:
    QDBusConnection m_bus;
};

} // namespace Tools
