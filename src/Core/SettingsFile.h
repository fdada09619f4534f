#pragma once

#include <QByteArray>
#include <QHash>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <optional>

/// Typed access to one INI file. `store` writes to disk before it returns, and keeps what other programs
/// wrote. While the disk is full the file stays as it was: unwritten values can be read here and are written
/// with the next value that fits. A value of another type, or one that is not finite, counts as absent. A
/// damaged file is copied to "NAME.damaged". Where the file cannot be written, or is no file, values last as
/// long as the program.
class SettingsFile {
public:
    explicit SettingsFile(const QString& path);

    QString path() const { return m_settings.fileName(); }

    std::optional<bool> boolean(const QString& key) const;
    std::optional<double> number(const QString& key) const;
    std::optional<QString> text(const QString& key) const;
    std::optional<QByteArray> bytes(const QString& key) const;
    std::optional<QStringList> texts(const QString& key) const;

    /// Stores a value. An invalid one removes the key.
    void store(const QString& key, const QVariant& value);

private:
    QVariant value(const QString& key) const;
    bool hasRoom() const;

    QSettings m_settings;
    QHash<QString, QVariant> m_unsaved; ///< values that the disk had no room for yet
};
