#include "Preferences.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>
#include <type_traits>

namespace {

template <typename T> std::optional<T> read(const SettingsFile& file, const QString& key) {
    if constexpr (std::is_same_v<T, bool>) {
        return file.boolean(key);
    } else if constexpr (std::is_same_v<T, double>) {
        return file.number(key);
    } else if constexpr (std::is_same_v<T, QByteArray>) {
        return file.bytes(key);
    } else if constexpr (std::is_same_v<T, QStringList>) {
        return file.list(key);
    } else {
        return fromRawValue<T>(file.text(key).value_or(QString()));
    }
}

template <typename T> QVariant storable(const T& value) {
    if constexpr (std::is_enum_v<T>)
        return rawValue(value);
    else
        return QVariant::fromValue(value);
}

} // namespace

int spanSeconds(HistoryRetention retention) {
    constexpr int seconds[] = {300, 1500, 3600};
    return seconds[static_cast<int>(retention)];
}

template <typename T> T Property<T>::operator()() const {
    return read<T>(m_owner.file(), m_key).value_or(m_fallback);
}

template <typename T> void Property<T>::set(const T& value) {
    Q_EMIT m_owner.objectWillChange();
    m_owner.file().store(m_key, storable(value));
}

template class Property<bool>;
template class Property<double>;
template class Property<QByteArray>;
template class Property<QStringList>;
template class Property<Language>;
template class Property<MenuBarFormat>;
template class Property<HistoryRetention>;

Preferences& Preferences::shared() {
    static Preferences instance(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                QStringLiteral("/Tavrin/Tavrin.ini"));
    return instance;
}

Preferences::Preferences(const QString& iniFile, QObject* parent)
    : Observable(parent)
    , m_file(iniFile) {}

int Preferences::historyRetentionSamples() const {
    constexpr double minInterval = 0.5;
    constexpr int minSamples = 60;
    const double interval = std::max(minInterval, pollIntervalSeconds());
    return std::max(minSamples, static_cast<int>(spanSeconds(historyRetention()) / interval));
}

QList<QuickKillPreset> Preferences::quickKillPresets() const {
    return QuickKillPreset::decode(quickKillPresetsJSON()).value_or(QuickKillPreset::defaults());
}

void Preferences::storeQuickKillPresets(const QList<QuickKillPreset>& presets) {
    quickKillPresetsJSON.set(QuickKillPreset::encode(presets));
}

QHash<QString, ProcGroup> Preferences::programGroups() const {
    QHash<QString, ProcGroup> groups;
    const QJsonObject stored = QJsonDocument::fromJson(programGroupsJSON()).object();
    for (auto each = stored.begin(); each != stored.end(); ++each) {
        if (const auto group = fromRawValue<ProcGroup>(each.value().toString()))
            groups.insert(each.key(), *group);
    }
    return groups;
}

void Preferences::storeProgramGroups(const QSet<QString>& programs, std::optional<ProcGroup> group) {
    QJsonObject stored = QJsonDocument::fromJson(programGroupsJSON()).object(); // what is unreadable stays
    for (const QString& program : programs) {
        stored.remove(program);
        if (group)
            stored.insert(program, rawValue(*group));
    }
    programGroupsJSON.set(QJsonDocument(stored).toJson(QJsonDocument::Compact));
}
