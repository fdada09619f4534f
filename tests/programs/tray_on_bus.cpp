#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <cstdio>

using namespace Qt::StringLiterals;

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
        if (message.member() == u"Get"_s)
            return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(true))));
        if (message.member() != u"RegisterStatusNotifierItem"_s)
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
    bus.registerVirtualObject(u"/StatusNotifierWatcher"_s, &tray);
    if (!bus.registerService(u"org.kde.StatusNotifierWatcher"_s))
        return 1;
    say("tray");
    return QCoreApplication::exec();
}
