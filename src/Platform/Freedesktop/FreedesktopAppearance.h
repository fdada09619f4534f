#pragma once

#include "Platform/Appearance.h"

class QDBusVariant;

/// Follows `color-scheme` of `org.freedesktop.appearance` in the desktop portal. Without a session bus or a
/// portal there is no preference.
class FreedesktopAppearance : public Appearance {
    Q_OBJECT

public:
    explicit FreedesktopAppearance(QObject* parent = nullptr);

    std::optional<bool> prefersDark() const override { return m_prefersDark; }

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void take(const QVariant& colorScheme);

    std::optional<bool> m_prefersDark;
};
