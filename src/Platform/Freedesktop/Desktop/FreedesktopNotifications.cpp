#include "Platform/Freedesktop/Desktop/FreedesktopNotifications.h"

#include "Platform/Freedesktop/BusSignal.h"
#include "Platform/Freedesktop/Desktop/NotificationText.h"
#include "Platform/Log.h"
#include "Platform/Unix/ActivationToken.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const auto notificationService = u"org.freedesktop.Notifications"_s;
const auto notificationPath = u"/org/freedesktop/Notifications"_s;
const auto busService = u"org.freedesktop.DBus"_s;

const auto clickAction = u"default"_s; ///< the key of a click
constexpr int serverDecides = -1;      ///< when the notification expires
constexpr qsizetype maxActivationToken = 512;

QDBusMessage methodOf(const QString& service, const QString& path, const QString& method) {
    return QDBusMessage::createMethodCall(service, path, service, method);
}

QDBusMessage serverMethod(const QString& method) {
    return methodOf(notificationService, notificationPath, method);
}

/// Returns whether it is the bus that refused the call: there is no server, and none could be started.
bool isMissing(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ErrorMessage && reply.service() == busService;
}

} // namespace

FreedesktopNotifications::FreedesktopNotifications(const QDBusConnection& bus)
    : FreedesktopNotifications(bus, Limits()) {}

FreedesktopNotifications::FreedesktopNotifications(const QDBusConnection& bus, Limits limits)
    : m_bus(bus)
    , m_limits(limits) {
    if (!m_bus.isConnected()) {
        m_isAvailable = false;
        return;
    }
    m_watcher.setConnection(m_bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString& before, const QString& now) { followServer(before, now); });
    m_watcher.addWatchedService(notificationService);
    // `keyOf` compares the sender.
    const auto follow = [this](const QString& signal, const char* slot) {
        followSignal(m_bus, notificationPath, notificationService, signal, this, slot);
    };
    follow(u"ActionInvoked"_s, SLOT(actionInvoked(quint32, QString, QDBusMessage)));
    follow(u"NotificationClosed"_s, SLOT(notificationClosed(quint32, quint32, QDBusMessage)));
    follow(u"ActivationToken"_s, SLOT(activationToken(quint32, QString, QDBusMessage)));
    findOut();
}

/// Closes what was withdrawn while it was being replaced: nobody waits for the reply any more.
FreedesktopNotifications::~FreedesktopNotifications() {
    for (const Item& item : std::as_const(m_items)) {
        if (item.isWithdrawn)
            closeAtServer(item.id);
    }
}

void FreedesktopNotifications::call(const QDBusMessage& message, Answered answered) {
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, m_limits.callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, answered = std::move(answered)] {
        watcher->deleteLater();
        answered(*watcher);
    });
}

/// Finds out whether there is a server, or one that the bus would start.
void FreedesktopNotifications::findOut() {
    QDBusMessage owner = methodOf(busService, u"/org/freedesktop/DBus"_s, u"NameHasOwner"_s);
    owner << notificationService;
    call(owner, [this](const QDBusPendingCall& answer) {
        const QDBusPendingReply<bool> runs = answer;
        if (runs.isValid() && runs.value()) {
            setAvailable(true);
            return;
        }
        call(methodOf(busService, u"/org/freedesktop/DBus"_s, u"ListActivatableNames"_s),
             [this](const QDBusPendingCall& names) {
                 const QDBusPendingReply<QStringList> activatable = names;
                 setAvailable(activatable.isValid() && activatable.value().contains(notificationService));
             });
    });
}

void FreedesktopNotifications::setAvailable(bool isAvailable) {
    if (std::exchange(m_isAvailable, isAvailable) != isAvailable)
        Q_EMIT availabilityChanged();
}

void FreedesktopNotifications::followServer(const QString& before, const QString& now) {
    m_owner = now;
    if (!before.isEmpty()) {
        ++m_losses;
        m_capabilities.reset();
        m_server.clear();
        m_isAsking = false;
        forgetShown();
    }
    if (now.isEmpty()) {
        findOut();
        return;
    }
    setAvailable(true);
    sendWaiting();
}

/// Forgets what the server showed. It is not shown again: after a restart all would come in one burst.
void FreedesktopNotifications::forgetShown() {
    QStringList lost;
    for (const QString& key : m_items.keys()) {
        const Item item = m_items.value(key);
        if (item.id == 0 && !item.isSending)
            continue;
        m_items.remove(key);
        if (!item.isWithdrawn)
            lost.append(key);
    }
    for (const QString& key : std::as_const(lost))
        Q_EMIT closed(key);
}

void FreedesktopNotifications::show(const Notification& notification) {
    if (!m_bus.isConnected())
        return;
    Item& item = m_items[notification.key];
    item.next = notification;
    item.isWithdrawn = false;
    sendWaiting();
}

void FreedesktopNotifications::withdraw(const QString& key) {
    const auto item = m_items.find(key);
    if (item == m_items.end())
        return;
    item->next.reset();
    item->isWithdrawn = true;
    if (item->isSending)
        return; // until it has an id
    closeAtServer(item->id);
    m_items.erase(item);
}

void FreedesktopNotifications::closeAtServer(quint32 id) {
    if (id == 0)
        return;
    QDBusMessage close = serverMethod(u"CloseNotification"_s);
    close << id;
    close.setAutoStartService(false);
    m_bus.send(close); // nothing depends on its reply
}

void FreedesktopNotifications::askCapabilities() {
    if (std::exchange(m_isAsking, true))
        return;
    call(serverMethod(u"GetCapabilities"_s), [this, losses = m_losses](const QDBusPendingCall& answer) {
        if (losses == m_losses)
            told(answer);
    });
}

void FreedesktopNotifications::told(const QDBusPendingReply<QStringList>& capabilities) {
    m_isAsking = false;
    if (capabilities.isValid()) {
        m_server = capabilities.reply().service();
        m_capabilities = capabilities.value();
        setAvailable(true);
        sendWaiting();
        return;
    }
    // What waits is sent to the next server, or with the next notification.
    qCInfo(Log::platform) << "no notifications:" << capabilities.error().name();
    if (!isMissing(capabilities.reply()))
        return;
    setAvailable(!m_owner.isEmpty());
    if (!m_owner.isEmpty()) // it came meanwhile
        sendWaiting();
}

void FreedesktopNotifications::sendWaiting() {
    for (const QString& key : m_items.keys()) {
        const Item& item = m_items[key];
        if (!item.next || item.isSending)
            continue;
        if (!m_capabilities) {
            askCapabilities();
            return;
        }
        if (m_inFlight >= m_limits.callsInFlight)
            return;
        send(key);
    }
}

void FreedesktopNotifications::send(const QString& key) {
    Item& item = m_items[key];
    const Notification notification = *std::exchange(item.next, std::nullopt);
    item.isSending = true;
    item.firstAction = notification.actions.value(0).key;
    ++m_inFlight;
    call(notify(notification, item.id),
         [this, key, notification, losses = m_losses](const QDBusPendingCall& reply) {
             --m_inFlight;
             if (losses == m_losses)
                 sent(key, notification, reply);
             sendWaiting();
         });
}

void FreedesktopNotifications::sent(const QString& key, const Notification& notification,
                                    const QDBusPendingCall& reply) {
    const QDBusPendingReply<quint32> id = reply;
    Item& item = m_items[key];
    item.isSending = false;
    if (!id.isValid() || id.value() == 0) {
        failed(key, notification, id.reply());
        return;
    }
    item.id = id.value();
    if (item.isWithdrawn) {
        closeAtServer(item.id);
        m_items.remove(key);
    }
}

/// A server that is missing shows it later. One that does not answer, or refuses, may have shown it.
void FreedesktopNotifications::failed(const QString& key, const Notification& notification,
                                      const QDBusMessage& reply) {
    qCInfo(Log::platform) << "a notification was not shown:" << reply.errorName();
    Item& item = m_items[key];
    closeAtServer(item.id);
    if (item.isWithdrawn) {
        m_items.remove(key);
    } else if (isMissing(reply)) {
        m_capabilities.reset();
        item.id = 0;
        if (!item.next)
            item.next = notification;
    } else {
        forget(key);
    }
}

void FreedesktopNotifications::forget(const QString& key) {
    m_items.remove(key);
    Q_EMIT closed(key);
}

QDBusMessage FreedesktopNotifications::notify(const Notification& notification, quint32 replaces) const {
    QStringList actions;
    if (m_capabilities->contains(u"actions"_s)) {
        for (const Notification::Action& action : notification.actions) {
            const QString label = NotificationText::action(action.label);
            if (actions.isEmpty())
                actions << clickAction << label;
            actions << action.key << label;
        }
    }
    const bool isCritical = notification.urgency == Notification::Urgency::critical;
    const QVariantMap hints{{u"urgency"_s, QVariant::fromValue(static_cast<uchar>(isCritical ? 2 : 1))},
                            {u"desktop-entry"_s, u"org.example.tavrin"_s},
                            {u"category"_s, QString(u"x-tavrin."_s + notification.key)}};
    QDBusMessage message = serverMethod(u"Notify"_s);
    message << u"Tavrin"_s << replaces << u"tavrin"_s << NotificationText::title(notification.title)
            << NotificationText::body(notification.body, m_capabilities->contains(u"body-markup"_s))
            << actions << hints << serverDecides;
    return message;
}

/// Returns the key of a notification that this server shows, or an empty text.
QString FreedesktopNotifications::keyOf(quint32 id, const QDBusMessage& signal) const {
    if (id == 0 || m_server.isEmpty() || signal.service() != m_server)
        return {};
    for (auto item = m_items.cbegin(); item != m_items.cend(); ++item) {
        if (item->id == id)
            return item.key();
    }
    return {};
}

/// Closes the notification too, so that no action is taken twice.
void FreedesktopNotifications::actionInvoked(quint32 id, const QString& action, const QDBusMessage& signal) {
    const QString key = keyOf(id, signal);
    if (key.isEmpty())
        return;
    const QString chosen = action == clickAction ? m_items[key].firstAction : action;
    withdraw(key);
    Q_EMIT invoked(key, chosen);
}

void FreedesktopNotifications::notificationClosed(quint32 id, quint32, const QDBusMessage& signal) {
    const QString key = keyOf(id, signal);
    if (key.isEmpty())
        return;
    Item& item = m_items[key];
    if (!item.isSending) {
        forget(key);
        return;
    }
    if (item.isWithdrawn)
        return;
    withdraw(key); // what is on its way would open it again
    Q_EMIT closed(key);
}

/// Keeps the right to come forward on Wayland that the server passes on just before the action.
void FreedesktopNotifications::activationToken(quint32 id, const QString& token, const QDBusMessage& signal) {
    if (!keyOf(id, signal).isEmpty() && token.size() <= maxActivationToken)
        qputenv(activationTokenVariable, token.toUtf8());
}
