#pragma once

#include <QList>
#include <QtGlobal>

/// This program's user, its process and what it stands on. Actions compare with them to spare other users and
/// the program itself.
class Identity {
public:
    virtual ~Identity() = default;

    virtual quint32 userId() const = 0;
    virtual qint32 processId() const = 0;
    /// Returns the processes that draw this program's windows, on whose end it ends too.
    virtual QList<qint32> displayServers() const { return {}; }
};
