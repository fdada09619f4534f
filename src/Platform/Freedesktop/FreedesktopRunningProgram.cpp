#include "Platform/Freedesktop/FreedesktopRunningProgram.h"

#include "Platform/Freedesktop/BusName.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int answerTimeoutMs = 500;

/// Returns the address of the user's bus, empty where none runs.
QString addressOfBus() {
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s;
    if (!address.isEmpty() || !QFileInfo::exists(socket))
        return address;
    return u"unix:path="_s + QString::fromLatin1(QUrl::toPercentEncoding(socket, "/", "~"));
}

/// Returns whether a bus takes us in. A connection to a bus waits 25 s for that, and for ever where a bus
/// does not even ask who we are; one to a peer waits for nothing.
bool answers(const QString& address, std::chrono::milliseconds patience) {
    const QString name = u"whether-the-bus-answers"_s;
    const QString bus = u"org.freedesktop.DBus"_s;
    const QDBusMessage hello =
        QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"Hello"_s);
    const QDBusMessage answer = QDBusConnection::connectToPeer(address, name)
                                    .call(hello, QDBus::Block, static_cast<int>(patience.count()));
    QDBusConnection::disconnectFromPeer(name);
    return answer.type() == QDBusMessage::ReplyMessage;
}

} // namespace

FreedesktopRunningProgram::FreedesktopRunningProgram(std::chrono::milliseconds patience)
    : m_patience(patience) {}

QDBusConnection FreedesktopRunningProgram::sessionBus(std::chrono::milliseconds patience) {
    const QString address = addressOfBus();
    const bool runs = !address.isEmpty() && answers(address, patience);
    return runs ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

std::optional<QByteArray> FreedesktopRunningProgram::report(const QString& kind) {
    if (!m_bus)
        m_bus = sessionBus(m_patience);
    if (!m_bus->isConnected())
        return std::nullopt;
    QDBusMessage question =
        QDBusMessage::createMethodCall(BusName::service, BusName::object, BusName::interface, u"Report"_s);
    question.setAutoStartService(false);
    question << kind;
    const QDBusReply<QString> answer = m_bus->call(question, QDBus::Block, answerTimeoutMs);
    return answer.isValid() ? std::optional(answer.value().toUtf8()) : std::nullopt;
}
