#pragma once

#include "Core/Language.h"
#include "Core/Observable.h"
#include "Core/RawValue.h"
#include "Core/Relief/QuickKillPreset.h"
#include "Core/Sampling/ProcGroup.h"
#include "Core/SettingsFile.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <array>

enum class MenuBarFormat { both, cpuOnly, ramOnly, iconOnly };

template <>
inline constexpr std::array rawValueTable<MenuBarFormat> = {
    RawValueRow{MenuBarFormat::both, QT_TRANSLATE_NOOP("Translations", "CPU% • RAM%")},
    RawValueRow{MenuBarFormat::cpuOnly, QT_TRANSLATE_NOOP("Translations", "CPU%")},
    RawValueRow{MenuBarFormat::ramOnly, QT_TRANSLATE_NOOP("Translations", "RAM%")},
    RawValueRow{MenuBarFormat::iconOnly, QT_TRANSLATE_NOOP("Translations", "Icon only")},
};

enum class HistoryRetention { fiveMin, twentyFive, oneHour };

template <>
inline constexpr std::array rawValueTable<HistoryRetention> = {
    RawValueRow{HistoryRetention::fiveMin, QT_TRANSLATE_NOOP("Translations", "5 min")},
    RawValueRow{HistoryRetention::twentyFive, QT_TRANSLATE_NOOP("Translations", "25 min")},
    RawValueRow{HistoryRetention::oneHour, QT_TRANSLATE_NOOP("Translations", "1 hour")},
};

/// Returns the length of a history of that retention in seconds.
int spanSeconds(HistoryRetention retention);

class Preferences;

/// One setting: a typed view onto one key. Reading returns the stored value, or the default where the key is
/// absent or unreadable. It never writes.
template <typename T> class Property {
public:
    Property(Preferences& owner, const char16_t* key, T fallback)
        : m_owner(owner)
        , m_key(QString::fromUtf16(key))
        , m_fallback(std::move(fallback)) {}

    T operator()() const;
    /// Announces the change, then writes the value to disk before it returns.
    void set(const T& value);

private:
    Preferences& m_owner;
    QString m_key;
    T m_fallback;
};

/// The one store of user settings.
class Preferences : public Observable {
    Q_OBJECT

public:
    /// Returns the settings of the running program, in the user's configuration folder.
    static Preferences& shared();

    explicit Preferences(const QString& iniFile, QObject* parent = nullptr);

    /// Read once, when the program starts.
    Property<Language> language{*this, u"pref.language", Language::system};
    Property<bool> startAtLogin{*this, u"pref.startAtLogin", true};
    Property<bool> showWidgetOnLaunch{*this, u"pref.showWidgetOnLaunch", false};
    Property<bool> showInDock{*this, u"pref.showInDock", true};
    Property<MenuBarFormat> menuBarFormat{*this, u"pref.menuBarFormat", MenuBarFormat::both};
    Property<double> pollIntervalSeconds{*this, u"pref.pollIntervalSeconds", 2.0};
    Property<HistoryRetention> historyRetention{*this, u"pref.historyRetention",
                                                HistoryRetention::twentyFive};
    Property<bool> pauseOnLowPower{*this, u"pref.pauseOnLowPower", false};
    Property<bool> alertRAMLowEnabled{*this, u"pref.alertRAMLow_enabled", true};
    Property<double> alertRAMLowFreeGB{*this, u"pref.alertRAMLow_freeGB", 2.0};
    Property<bool> alertCPUHotEnabled{*this, u"pref.alertCPUHot_enabled", true};
    Property<double> alertCPUHotPercent{*this, u"pref.alertCPUHot_percent", 85.0};
    Property<bool> alertThermalEnabled{*this, u"pref.alertThermal_enabled", true};
    Property<bool> alertIdleAgentEnabled{*this, u"pref.alertIdleAgent_enabled", true};
    Property<double> alertIdleAgentMinIdleMin{*this, u"pref.alertIdleAgent_minIdleMin", 15.0};
    Property<double> alertIdleAgentMinRSSMB{*this, u"pref.alertIdleAgent_minRSSMB", 500.0};
    Property<bool> alertBrowserHogEnabled{*this, u"pref.alertBrowserHog_enabled", true};
    Property<double> alertBrowserHogPercentTotal{*this, u"pref.alertBrowserHog_percentTotal", 25.0};
    Property<bool> alertCachesBigEnabled{*this, u"pref.alertCachesBig_enabled", true};
    Property<double> alertCachesBigGB{*this, u"pref.alertCachesBig_gb", 5.0};
    Property<bool> alertSessionBigEnabled{*this, u"pref.alertSessionBig_enabled", false};
    Property<double> alertSessionBigGB{*this, u"pref.alertSessionBig_gb", 8.0};
    Property<bool> alertPressureEnabled{*this, u"pref.alertPressure_enabled", true};
    Property<bool> alertForecastEnabled{*this, u"pref.alertForecast_enabled", true};
    Property<bool> alertMemoryKillEnabled{*this, u"pref.alertMemoryKill_enabled", true};
    Property<bool> notifyRAMLow{*this, u"pref.notifyRAMLow", true};
    Property<bool> notifyRAMTight{*this, u"pref.notifyRAMTight", false};
    Property<bool> notifyPressure{*this, u"pref.notifyPressure", true};
    Property<bool> notifyMemoryFull{*this, u"pref.notifyMemoryFull", true};
    Property<bool> notifyCPUHot{*this, u"pref.notifyCPUHot", false};
    Property<bool> notifyThermal{*this, u"pref.notifyThermal", true};
    Property<bool> notifySwapHigh{*this, u"pref.notifySwapHigh", false};
    Property<bool> notifyIdleAgent{*this, u"pref.notifyIdleAgent", false};
    Property<bool> notifyBrowserHog{*this, u"pref.notifyBrowserHog", false};
    Property<bool> notifyCachesBig{*this, u"pref.notifyCachesBig", false};
    Property<bool> notifySessionBig{*this, u"pref.notifySessionBig", false};
    Property<bool> notifyCleaned{*this, u"pref.notifyCleaned", true};
    Property<bool> notifyQuietEnabled{*this, u"pref.notifyQuiet_enabled", false};
    /// In minutes since midnight. The quiet time may go over midnight; it is empty where both are equal.
    Property<double> notifyQuietFrom{*this, u"pref.notifyQuiet_from", 22 * 60};
    Property<double> notifyQuietTo{*this, u"pref.notifyQuiet_to", 7 * 60};
    /// Patterns of what no scan counts and no clean removes, see CleanupRule::excludes.
    Property<QStringList> cleanupExcludes{*this, u"pref.cleanupExcludes", {}};
    /// Paths that were left out of one clean, see LeaveOutOffer.
    Property<QStringList> cleanupLeftOut{*this, u"ui.cleanupLeftOut", {}};
    Property<bool> askBeforeCleaningAll{*this, u"pref.askBeforeCleaningAll", true};
    Property<bool> showAllCleanupTargets{*this, u"pref.showAllCleanupTargets", false};
    /// Absolute folders to look for projects in. Empty: the home folder.
    Property<QStringList> projectFolders{*this, u"pref.projectFolders", QStringList()};
    Property<QByteArray> quickKillPresetsJSON{*this, u"pref.quickKillPresetsJSON", QByteArray()};
    /// A JSON object: raw values of groups by program.
    Property<QByteArray> programGroupsJSON{*this, u"pref.programGroupsJSON", QByteArray()};

    /// Returns the length of the history in samples: the retention over the poll interval, at least 60.
    int historyRetentionSamples() const;

    /// Returns the stored presets, or the built-in ones where none are readable.
    QList<QuickKillPreset> quickKillPresets() const;
    void storeQuickKillPresets(const QList<QuickKillPreset>& presets);

    /// Returns the groups that the user chose, by program. An unreadable group counts as absent.
    QHash<QString, ProcGroup> programGroups() const;
    /// Stores a group for these programs. An empty one removes the choice.
    void storeProgramGroups(const QSet<QString>& programs, std::optional<ProcGroup> group);

    /// Returns the file behind the properties, for keys without a property.
    SettingsFile& file() { return m_file; }
    const SettingsFile& file() const { return m_file; }

private:
    SettingsFile m_file;
};
