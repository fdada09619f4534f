#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <cstdio>

namespace {

void say(const char* word) {
    std::puts(word);
    std::fflush(stdout);
}

/// A status notifier tray on the session bus. It prints "tray" once it is registered and "item" per item.
class TrayOnBus : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override {
        return QStringLiteral("<interface name=\"org.kde.StatusNotifierWatcher\">"
                              "<property name=\"IsStatusNotifierHostRegistered\" type=\"b\" access=\"read\"/>"
                              "</interface>");
    }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() == QStringLiteral("Get"))
            return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(true))));
        if (message.member() != QStringLiteral("RegisterStatusNotifierItem"))
            return false;
        say("item");
        return bus.send(message.createReply());
    }
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    TrayOnBus tray;
    auto bus = QDBusConnection::sessionBus();
    bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), &tray);
    if (!bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")))
        return 1;
    say("tray");
    return QCoreApplication::exec();
}
