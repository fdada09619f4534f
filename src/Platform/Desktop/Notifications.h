#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

/// What the desktop shows of one condition. All texts are plain: markup in them is shown literally.
struct Notification {
    enum class Urgency { normal, critical }; ///< A critical one stays until somebody closes it.

    struct Action {
        QString key;
        QString label;

        bool operator==(const Action&) const = default;
    };

    QString key; ///< of the condition: a later one with the same key takes its place
    QString title;
    QString body;
    Urgency urgency = Urgency::normal;
    QList<Action> actions; ///< the first is also that of a click on the notification

    bool operator==(const Notification&) const = default;
};

/// The notifications of the desktop. Nothing here waits for it: what it cannot show yet is shown once it can.
class Notifications : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void show(const Notification& notification) = 0;
    /// Closes the notification with that key, if there is one.
    virtual void withdraw(const QString& key) = 0;
    /// Returns whether the desktop shows notifications; an empty optional until that is known.
    virtual std::optional<bool> isAvailable() const = 0;

Q_SIGNALS:
    /// Emitted when the user chose an action, which closes the notification.
    void invoked(const QString& key, const QString& action);
    /// Emitted when a notification is gone that was not withdrawn: the user closed it, its time was over, or
    /// the desktop lost it.
    void closed(const QString& key);
    void availabilityChanged();
};
