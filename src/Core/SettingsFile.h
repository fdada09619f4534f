#pragma once

#include <QByteArray>
#include <QHash>
#include <QSettings>
#include <QString>

#include <optional>

/// Typed access to one INI file. A write is on disk when it returns, and keeps what other programs wrote
/// meanwhile. While the disk is full the file stays as it was, and what could not be written can be read here
/// and is written with the next value that can. A value that cannot be read as the type asked for, or is not
/// finite, counts as absent. A file that is damaged is kept beside, as "NAME.damaged". Where it cannot be
/// written, or something else than a file stands in its place, values that are stored last as long as the
/// program.
class SettingsFile {
public:
    explicit SettingsFile(const QString& path);

    QString path() const { return m_settings.fileName(); }

    std::optional<bool> boolean(const QString& key) const;
    std::optional<double> number(const QString& key) const;
    std::optional<QString> text(const QString& key) const;
    std::optional<QByteArray> bytes(const QString& key) const;

    /// An invalid value takes the key away.
    void store(const QString& key, const QVariant& value);

private:
    QVariant value(const QString& key) const;
    bool hasRoom() const;

    QSettings m_settings;
    QHash<QString, QVariant> m_unsaved; ///< what the disk had no room for yet
};
