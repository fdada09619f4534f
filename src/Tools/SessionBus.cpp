#include "Tools/SessionBus.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace {

constexpr int replyTimeoutMs = 1000;

QDBusMessage call(const QString& name, const QString& path, const QString& interface, const QString& method) {
    QDBusMessage message = QDBusMessage::createMethodCall(name, path, interface, method);
    message.setAutoStartService(false);
    return message;
}

/// Returns the object path of an application's actions: its name, with slashes for the dots.
QString pathOf(QString name) {
    return u'/' + name.replace(u'.', u'/').replace(u'-', u'_');
}

} // namespace

namespace Tools {

SessionBus::SessionBus(const QDBusConnection& bus)
    : m_bus(bus) {}

QStringList SessionBus::namesOf(const QList<qint32>& pids) {
    const QString bus = u"org.freedesktop.DBus"_s;
    const QString path = u"/org/freedesktop/DBus"_s;
    const QDBusReply<QStringList> all =
        m_bus.call(call(bus, path, bus, u"ListNames"_s), QDBus::Block, replyTimeoutMs);
    QStringList names;
    for (const QString& name : all.value()) {
        if (name.startsWith(u':') || name == bus)
            continue;
        auto question = call(bus, path, bus, u"GetConnectionUnixProcessID"_s);
        question << name;
        const QDBusReply<uint> owner = m_bus.call(question, QDBus::Block, replyTimeoutMs);
        if (owner.isValid() && pids.contains(static_cast<qint32>(owner.value())))
            names.append(name);
    }
    return names;
}

bool SessionBus::activateQuit(const QString& name) {
    const QString actions = u"org.gtk.Actions"_s;
    const QDBusReply<QStringList> listed =
        m_bus.call(call(name, pathOf(name), actions, u"List"_s), QDBus::Block, replyTimeoutMs);
    if (!listed.value().contains(u"quit"_s))
        return false;
    auto activation = call(name, pathOf(name), actions, u"Activate"_s);
    activation << u"quit"_s << QVariantList() << QVariantMap();
    return m_bus.send(activation);
}

bool SessionBus::callQuit(const QString& name) {
    const QString path = u"/MainApplication"_s;
    const QString application = u"org.qtproject.Qt.QCoreApplication"_s;
    const QDBusReply<QString> description =
        m_bus.call(call(name, path, u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s), QDBus::Block,
                   replyTimeoutMs);
    return description.value().contains(application) && m_bus.send(call(name, path, application, u"quit"_s));
}

} // namespace Tools
