#pragma once

#include "Platform/Desktop/Notifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QStringList>

#include <functional>

class QDBusPendingCall;

/// The desktop's notifications by `org.freedesktop.Notifications` on the session bus. Each server is asked
/// once for its capabilities, before the first notification. Calls are asynchronous with a timeout, a few at
/// a time. What a missing server could not show waits for one; what a server had shown when it went is
/// closed.
class FreedesktopNotifications : public Notifications {
    Q_OBJECT

public:
    struct Limits {
        int callTimeoutMs = 10000;
        int callsInFlight = 4;
    };

    explicit FreedesktopNotifications(const QDBusConnection& bus = QDBusConnection::sessionBus());
    FreedesktopNotifications(const QDBusConnection& bus, Limits limits);
    ~FreedesktopNotifications() override;

    void show(const Notification& notification) override;
    void withdraw(const QString& key) override;
    std::optional<bool> isAvailable() const override { return m_isAvailable; }

private Q_SLOTS:
    void actionInvoked(quint32 id, const QString& action, const QDBusMessage& signal);
    void notificationClosed(quint32 id, quint32 reason, const QDBusMessage& signal);
    void activationToken(quint32 id, const QString& token, const QDBusMessage& signal);

private:
    /// One notification, on its way or shown.
    struct Item {
        quint32 id = 0;                   ///< that the server gave it, 0 while it shows none
        std::optional<Notification> next; ///< to be sent
        bool isSending = false;
        bool isWithdrawn = false; ///< while it was sent

        QString firstAction; ///< of the one that was sent last
    };

    using Answered = std::function<void(const QDBusPendingCall&)>;

    void call(const QDBusMessage& message, Answered answered);
    void followServer(const QString& before, const QString& now);
    void findOut();
    void setAvailable(bool isAvailable);
    void askCapabilities();
    void told(const QDBusPendingReply<QStringList>& capabilities);
    void sendWaiting();
    void send(const QString& key);
    void sent(const QString& key, const Notification& notification, const QDBusPendingCall& reply);
    void failed(const QString& key, const Notification& notification, const QDBusMessage& reply);
    void closeAtServer(quint32 id);
    void forgetShown();
    void forget(const QString& key);
    QDBusMessage notify(const Notification& notification, quint32 replaces) const;
    QString keyOf(quint32 id, const QDBusMessage& signal) const;

    QDBusConnection m_bus;
    Limits m_limits;
    QDBusServiceWatcher m_watcher;
    QHash<QString, Item> m_items; ///< by key
    std::optional<bool> m_isAvailable;
    std::optional<QStringList> m_capabilities; ///< of the server that runs, empty until it has told
    QString m_server;                          ///< the unique name on the bus of the one that told
    QString m_owner;                           ///< the same, as the bus announced it last
    bool m_isAsking = false;
    int m_inFlight = 0;
    int m_losses = 0; ///< servers that went, which tells their late replies apart
};
