#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

#include <optional>

/// Typed access to one INI file. A write is on disk when it returns, and keeps what other programs wrote
/// meanwhile. A value that cannot be read as the type asked for, or is not finite, counts as absent.
class SettingsFile {
public:
    explicit SettingsFile(const QString& path);

    QString path() const { return m_settings.fileName(); }

    std::optional<bool> boolean(const QString& key) const;
    std::optional<double> number(const QString& key) const;
    std::optional<QString> text(const QString& key) const;
    std::optional<QByteArray> bytes(const QString& key) const;

    void store(const QString& key, const QVariant& value);

private:
    QSettings m_settings;
};
