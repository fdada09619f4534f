#include "Platform/Freedesktop/FreedesktopRunningProgram.h"

#include "Platform/Freedesktop/BusName.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>

using namespace Qt::StringLiterals;

constexpr int answerTimeoutMs = 500;

FreedesktopRunningProgram::FreedesktopRunningProgram(const QDBusConnection& bus)
    : m_bus(bus) {}

QDBusConnection FreedesktopRunningProgram::sessionBus() {
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s;
    const bool runs = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") || QFileInfo::exists(socket);
    return runs ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

std::optional<QByteArray> FreedesktopRunningProgram::report(const QString& kind) {
    if (!m_bus.isConnected())
        return std::nullopt;
    QDBusMessage question =
        QDBusMessage::createMethodCall(BusName::service, BusName::object, BusName::interface, u"Report"_s);
    question.setAutoStartService(false);
    question << kind;
    const QDBusReply<QString> answer = m_bus.call(question, QDBus::Block, answerTimeoutMs);
    return answer.isValid() ? std::optional(answer.value().toUtf8()) : std::nullopt;
}
