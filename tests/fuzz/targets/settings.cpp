#include "Preferences.h"
#include "fuzz/Fuzz.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Values {
    std::array<bool, 10> switches;
    std::array<double, 7> numbers;
    MenuBarFormat format;
    QByteArray presets;

    bool operator==(const Values&) const = default;
};

Values valuesOf(const Preferences& p) {
    return {.switches = {p.startAtLogin(), p.showWidgetOnLaunch(), p.showInDock(), p.pauseOnLowPower(),
                         p.alertRAMLowEnabled(), p.alertCPUHotEnabled(), p.alertThermalEnabled(),
                         p.alertIdleAgentEnabled(), p.alertBrowserHogEnabled(), p.alertCachesBigEnabled()},
            .numbers = {p.pollIntervalSeconds(), p.alertRAMLowFreeGB(), p.alertCPUHotPercent(),
                        p.alertIdleAgentMinIdleMin(), p.alertIdleAgentMinRSSMB(),
                        p.alertBrowserHogPercentTotal(), p.alertCachesBigGB()},
            .format = p.menuBarFormat(),
            .presets = p.quickKillPresetsJSON()};
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    Fuzz::require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

/// The bytes of a settings file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    write(path, Fuzz::bytes(data, size));
    Values before;
    {
        Preferences preferences(path);
        before = valuesOf(preferences);
        for (const double number : before.numbers)
            Fuzz::require(std::isfinite(number));
        Fuzz::require(preferences.historyRetentionSamples() >= 60);
        // A changed value stays and changes no other.
        preferences.historyRetention.set(HistoryRetention::oneHour);
        Fuzz::require(valuesOf(preferences) == before);
    }
    const Preferences again(path);
    Fuzz::require(again.historyRetention() == HistoryRetention::oneHour);
    Fuzz::require(valuesOf(again) == before);
    return 0;
}
