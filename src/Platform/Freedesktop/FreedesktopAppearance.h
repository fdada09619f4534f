#pragma once

#include "Platform/Appearance.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QVariantMap>

/// Follows `org.freedesktop.appearance` in the settings of the desktop portal, and on GNOME the font, the
/// size of text and the accessibility settings. Without a session bus or a portal nothing is stated.
class FreedesktopAppearance : public Appearance {
    Q_OBJECT

public:
    explicit FreedesktopAppearance(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                                   QObject* parent = nullptr);

    AppearanceChoice choice() const override { return m_choice; }

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void take(const QString& group, const QVariantMap& settings);

    QDBusConnection m_bus;
    AppearanceChoice m_choice;
};
