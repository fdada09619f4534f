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
        static_cast<void>(settings.allKeys()); // reading all is what finds a format error
        return settings.status() == QSettings::FormatError ? State::damaged : State::good;
    } catch (const std::bad_alloc&) { // Qt allocates any length that a damaged value names
        return State::unreadable;
    }
}

/// Copies a damaged file, because the first value that is stored overwrites it; moves one that cannot be
/// read. Returns false where that fails.
bool keepDamagedBeside(const QString& path) {
    const State state = stateOf(path);
    if (state == State::good)
        return true;
    qCWarning(Log::platform) << "the settings are damaged";
    const QString kept = path + QStringLiteral(".damaged");
    const QString made = kept + QStringLiteral(".new");
    QFile::remove(made);
    if (state == State::unreadable ? !QFile::rename(path, made) : !QFile::copy(path, made)) {
        qCWarning(Log::platform) << "the damaged settings could not be kept";
        return false;
    }
    QFile::remove(kept);
    return QFile::rename(made, kept);
}

/// Returns the path for QSettings: the folder of the file where a pipe or a device is in its place, or where
/// damaged settings would be lost. QSettings can neither read nor write a folder, but could block on a pipe
/// and would replace it; values last as long as the program then.
QString prepared(const QString& path) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return info.absolutePath();
    return keepDamagedBeside(path) ? path : info.absolutePath();
}

} // namespace

SettingsFile::SettingsFile(const QString& path)
    : m_settings(prepared(path), QSettings::IniFormat) {}

QVariant SettingsFile::value(const QString& key) const {
    const auto unsaved = m_unsaved.constFind(key);
    return unsaved == m_unsaved.cend() ? m_settings.value(key) : *unsaved;
}

/// Returns whether the disk has room for the whole file and more. QSettings replaces the file without an
/// error by one that a full disk cut short.
bool SettingsFile::hasRoom() const {
    constexpr qsizetype slack = 4096;
    constexpr qsizetype maxEscaped = 4; // bytes of the file for one byte of a value
    const QFileInfo file(path());
    qsizetype size = file.size() + slack;
    for (const QVariant& each : m_unsaved)
        size += maxEscaped * (each.toByteArray().size() + each.toStringList().join(u' ').toUtf8().size());
    QDir().mkpath(file.path());
    QTemporaryFile trial(path() + QStringLiteral(".XXXXXX"));
    return trial.open() && trial.write(QByteArray(size, 'x')) == size && trial.flush();
}

std::optional<QString> SettingsFile::text(const QString& key) const {
    const QVariant stored = value(key);
    // An unquoted comma in the file makes a list.
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

std::optional<QStringList> SettingsFile::list(const QString& key) const {
    const QVariant stored = value(key);
    const bool isReadable =
        stored.userType() == QMetaType::QStringList || stored.userType() == QMetaType::QString;
    return isReadable ? std::optional(stored.toStringList()) : std::nullopt;
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
