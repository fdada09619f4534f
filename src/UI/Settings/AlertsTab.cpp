#include "UI/Settings/AlertsTab.h"

#include "Platform/Desktop/Notifications.h"
#include "UI/Kit/FormSection.h"
#include "UI/Kit/TextLabel.h"

#include <QCheckBox>
#include <QLocale>
#include <QTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int minutesPerDay = 24 * 60;
constexpr int quietStepMinutes = 30;

/// Returns minutes since midnight as a clock shows them, without seconds.
QString timeOfDay(double minutes) {
    const QLocale locale;
    const int whole = static_cast<int>(std::clamp(minutes, 0.0, minutesPerDay - 1.0));
    return locale.toString(QTime(whole / 60, whole % 60),
                           locale.timeFormat(QLocale::ShortFormat).remove(u":ss"_s));
}

} // namespace

AlertsTab::AlertsTab(Preferences& prefs, const Notifications& notifications, QWidget* parent)
    : SettingsForm(prefs, tr("Alerts"), parent) {
    auto* memory =
        addRule(tr("Memory"), tr("Low RAM warning"), prefs.alertRAMLowEnabled,
                {{{tr("Free RAM threshold"), tr("%1 GB"), 1}, {0.5, 16, 0.5}, prefs.alertRAMLowFreeGB}},
                prefs.notifyRAMLow);
    const QString tight = tr("Notify when RAM is getting tight");
    addNotify(memory, tight, tight, prefs.notifyRAMTight, prefs.alertRAMLowEnabled);
    addRule(tr("Memory pressure"), tr("Programs wait for memory"), prefs.alertPressureEnabled, {},
            prefs.notifyPressure);
    addRule(tr("Forecast"), tr("Memory full within 30 minutes"), prefs.alertForecastEnabled, {},
            prefs.notifyMemoryFull);
    addToggle(addSection(tr("Out of memory")), tr("What was ended because memory ran out"),
              prefs.alertMemoryKillEnabled);
    addRule(tr("CPU"), tr("CPU saturation"), prefs.alertCPUHotEnabled,
            {{{tr("CPU threshold"), tr("%1%", "a share")}, {50, 100, 5}, prefs.alertCPUHotPercent}},
            prefs.notifyCPUHot);
    addRule(tr("Thermal"), tr("Thermal pressure warning"), prefs.alertThermalEnabled, {},
            prefs.notifyThermal);
    addRule(tr("Idle agents"), tr("Flag idle Claude / agentic processes"), prefs.alertIdleAgentEnabled,
            {{{tr("Min idle"), tr("%1 min")}, {1, 120, 1}, prefs.alertIdleAgentMinIdleMin},
             {{tr("Min RAM"), tr("%1 MB")}, {100, 4000, 100}, prefs.alertIdleAgentMinRSSMB}},
            prefs.notifyIdleAgent);
    addRule(tr("Browsers"), tr("Browser RAM dominance"), prefs.alertBrowserHogEnabled,
            {{{tr("Of total RAM"), tr("%1%", "a share")}, {10, 80, 5}, prefs.alertBrowserHogPercentTotal}},
            prefs.notifyBrowserHog);
    addRule(tr("Caches"), tr("Caches reclaimable"), prefs.alertCachesBigEnabled,
            {{{tr("Threshold"), tr("%1 GB")}, {1, 50, 1}, prefs.alertCachesBigGB}}, prefs.notifyCachesBig);
    addRule(tr("Sessions"), tr("Large session"), prefs.alertSessionBigEnabled,
            {{{tr("Session holds more than"), tr("%1 GB")}, {1, 64, 1}, prefs.alertSessionBigGB}},
            prefs.notifySessionBig);
    addNotifications(prefs, notifications);
}

FormSection* AlertsTab::addRule(const QString& title, const QString& toggle, Property<bool>& enabled,
                                const QList<Threshold>& thresholds, Property<bool>& notify) {
    auto* section = addSection(title);
    addToggle(section, toggle, enabled);
    for (const Threshold& threshold : thresholds)
        addStepper(section, threshold.look, threshold.range, threshold.property, enabled);
    addNotify(section, tr("Notify"), tr("Notify: %1").arg(title), notify, enabled);
    return section;
}

/// Adds a switch that is enabled while `condition` is on. `name` tells it from those with the same text.
void AlertsTab::addNotify(FormSection* section, const QString& text, const QString& name,
                          Property<bool>& property, const Property<bool>& condition) {
    auto* toggle = addToggle(section, text, property);
    toggle->setAccessibleName(name);
    addDisplay([toggle, &condition] { toggle->setEnabled(condition()); });
}

void AlertsTab::addNotifications(Preferences& prefs, const Notifications& notifications) {
    auto* section = addSection(tr("Notifications"));
    addToggle(section, tr("Notify of heavy swap usage"), prefs.notifySwapHigh);
    addToggle(section, tr("Notify of a finished long clean"), prefs.notifyCleaned);
    addToggle(section, tr("Quiet time"), prefs.notifyQuietEnabled);
    const Stepper::Range day{0, minutesPerDay - quietStepMinutes, quietStepMinutes, true};
    addStepper(section, {tr("Quiet from"), u"%1"_s, 0, timeOfDay}, day, prefs.notifyQuietFrom,
               prefs.notifyQuietEnabled);
    addStepper(section, {tr("Quiet until"), u"%1"_s, 0, timeOfDay}, day, prefs.notifyQuietTo,
               prefs.notifyQuietEnabled);
    auto* missing = (new TextLabel(Theme::TextStyle::caption))->secondary()->wrapped();
    missing->setPlainText(tr("This desktop has no service that shows notifications."));
    section->addNote(missing);
    const auto tell = [missing, &notifications] {
        missing->setVisible(!notifications.isAvailable().value_or(true));
    };
    tell();
    connect(&notifications, &Notifications::availabilityChanged, missing, tell);
}
