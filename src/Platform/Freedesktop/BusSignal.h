#pragma once

#include "Platform/Log.h"

#include <QDBusConnection>
#include <QDBusError>

/// Connects a signal of the bus to a slot. Logs what the bus or Qt refuses, such as a slot with a type that
/// is not registered.
inline bool followSignal(QDBusConnection bus, const QString& path, const QString& interface,
                         const QString& signal, QObject* receiver, const char* slot) {
    // Any sender, because Qt would block on the bus for the owner of a name.
    const bool isConnected = bus.connect(QString(), path, interface, signal, receiver, slot);
    if (!isConnected)
        qCWarning(Log::platform) << "cannot follow" << interface << signal << bus.lastError().message();
    return isConnected;
}
