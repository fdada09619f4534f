#pragma once

#include <QString>

/// The names of the running program on the session bus, which docs/dbus.md describes.
namespace BusName {

const QString service = QStringLiteral("org.example.tavrin");
const QString object = QStringLiteral("/org/example/tavrin"); ///< as DBusActivatable has it
const QString interface = QStringLiteral("org.example.tavrin.Monitor");

} // namespace BusName
