#include "Core/SettingsFile.h"

#include <cmath>

SettingsFile::SettingsFile(const QString& path)
    : m_settings(path, QSettings::IniFormat) {}

std::optional<QString> SettingsFile::text(const QString& key) const {
    const QVariant value = m_settings.value(key);
    // An unquoted comma in the file makes a list, which no setting of ours is.
    if (!value.isValid() || value.userType() == QMetaType::QStringList)
        return std::nullopt;
    return value.toString();
}

std::optional<bool> SettingsFile::boolean(const QString& key) const {
    const auto stored = text(key);
    if (stored == u"true" || stored == u"1")
        return true;
    if (stored == u"false" || stored == u"0")
        return false;
    return std::nullopt;
}

std::optional<double> SettingsFile::number(const QString& key) const {
    const auto stored = text(key);
    bool ok = false;
    const double value = stored ? stored->toDouble(&ok) : 0;
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<QByteArray> SettingsFile::bytes(const QString& key) const {
    const QVariant value = m_settings.value(key);
    const bool readable = value.userType() == QMetaType::QByteArray || value.userType() == QMetaType::QString;
    return readable ? std::optional(value.toByteArray()) : std::nullopt;
}

void SettingsFile::store(const QString& key, const QVariant& value) {
    m_settings.setValue(key, value);
    m_settings.sync();
}
