#include "Core/SettingsFile.h"

#include "Platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cmath>
#include <new>

namespace {

enum class State { good, damaged, unreadable };

State stateOf(const QString& path) {
    try {
        const QSettings settings(path, QSettings::IniFormat);
        static_cast<void>(settings.allKeys()); // until somebody looks at all, the state is good
        return settings.status() == QSettings::FormatError ? State::damaged : State::good;
    } catch (const std::bad_alloc&) { // Qt makes room for any length that a damaged value names
        return State::unreadable;
    }
}

/// What cannot be read would be gone with the first value that is stored.
void keepDamagedBeside(const QString& path) {
    const State state = stateOf(path);
    if (state == State::good)
        return;
    qCWarning(Log::platform) << "the settings are damaged";
    QFile::remove(path + QStringLiteral(".damaged"));
    QFile::copy(path, path + QStringLiteral(".damaged"));
    if (state == State::unreadable)
        QFile::remove(path);
}

/// Opening a pipe or a device in the place of the file could wait for ever, and storing would put a file
/// there. A folder takes the settings' place instead: it is readable for nothing and takes nothing.
QString prepared(const QString& path) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return info.absolutePath();
    keepDamagedBeside(path);
    return path;
}

} // namespace

SettingsFile::SettingsFile(const QString& path)
    : m_settings(prepared(path), QSettings::IniFormat) {}

QVariant SettingsFile::value(const QString& key) const {
    const auto unsaved = m_unsaved.constFind(key);
    return unsaved == m_unsaved.cend() ? m_settings.value(key) : *unsaved;
}

/// QSettings replaces the file also by one that a full disk cut short, and does not say so. It gets to write
/// only where more than the whole has just fitted.
bool SettingsFile::hasRoom() const {
    constexpr qsizetype slack = 4096;
    constexpr qsizetype maxEscaped = 4; // a byte can take four
    const QFileInfo file(path());
    qsizetype size = file.size() + slack;
    for (const QVariant& each : m_unsaved)
        size += maxEscaped * each.toByteArray().size();
    QDir().mkpath(file.path());
    QTemporaryFile trial(path() + QStringLiteral(".XXXXXX"));
    return trial.open() && trial.write(QByteArray(size, 'x')) == size && trial.flush();
}

std::optional<QString> SettingsFile::text(const QString& key) const {
    const QVariant stored = value(key);
    // An unquoted comma in the file makes a list, which no setting of ours is.
    if (!stored.isValid() || stored.userType() == QMetaType::QStringList)
        return std::nullopt;
    return stored.toString();
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
    const QVariant stored = value(key);
    const bool readable =
        stored.userType() == QMetaType::QByteArray || stored.userType() == QMetaType::QString;
    return readable ? std::optional(stored.toByteArray()) : std::nullopt;
}

void SettingsFile::store(const QString& key, const QVariant& value) {
    m_unsaved.insert(key, value);
    if (!hasRoom()) {
        qCWarning(Log::platform) << "the settings cannot be written";
        return;
    }
    for (auto each = m_unsaved.cbegin(); each != m_unsaved.cend(); ++each)
        each->isValid() ? m_settings.setValue(each.key(), *each) : m_settings.remove(each.key());
    m_unsaved.clear();
    m_settings.sync();
    if (m_settings.status() != QSettings::NoError)
        qCWarning(Log::platform) << "the settings were not written:" << m_settings.status();
}
