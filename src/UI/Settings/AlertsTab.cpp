#include "UI/Settings/AlertsTab.h"

using namespace Qt::StringLiterals;

AlertsTab::AlertsTab(Preferences& prefs, QWidget* parent)
    : SettingsForm(prefs, tr("Alerts"), parent) {
    addRule(tr("Memory"), tr("Low RAM warning"), prefs.alertRAMLowEnabled,
            {{{tr("Free RAM threshold"), tr("%1 GB"), 1}, {0.5, 16, 0.5}, prefs.alertRAMLowFreeGB}});
    addRule(tr("Memory pressure"), tr("Programs wait for memory"), prefs.alertPressureEnabled, {});
    addRule(tr("Forecast"), tr("Memory full within 30 minutes"), prefs.alertForecastEnabled, {});
    addRule(tr("Out of memory"), tr("What was ended because memory ran out"), prefs.alertMemoryKillEnabled,
            {});
    addRule(tr("CPU"), tr("CPU saturation"), prefs.alertCPUHotEnabled,
            {{{tr("CPU threshold"), u"%1%"_s}, {50, 100, 5}, prefs.alertCPUHotPercent}});
    addRule(tr("Thermal"), tr("Thermal pressure warning"), prefs.alertThermalEnabled, {});
    addRule(tr("Idle agents"), tr("Flag idle Claude / agentic processes"), prefs.alertIdleAgentEnabled,
            {{{tr("Min idle"), tr("%1 min")}, {1, 120, 1}, prefs.alertIdleAgentMinIdleMin},
             {{tr("Min RAM"), tr("%1 MB")}, {100, 4000, 100}, prefs.alertIdleAgentMinRSSMB}});
    addRule(tr("Browsers"), tr("Browser RAM dominance"), prefs.alertBrowserHogEnabled,
            {{{tr("Of total RAM"), u"%1%"_s}, {10, 80, 5}, prefs.alertBrowserHogPercentTotal}});
    addRule(tr("Caches"), tr("Caches reclaimable"), prefs.alertCachesBigEnabled,
            {{{tr("Threshold"), tr("%1 GB")}, {1, 50, 1}, prefs.alertCachesBigGB}});
    addRule(tr("Sessions"), tr("Large session"), prefs.alertSessionBigEnabled,
            {{{tr("Session holds more than"), tr("%1 GB")}, {1, 64, 1}, prefs.alertSessionBigGB}});
}

void AlertsTab::addRule(const QString& title, const QString& toggle, Property<bool>& enabled,
                        const QList<Threshold>& thresholds) {
    auto* section = addSection(title);
    addToggle(section, toggle, enabled);
    for (const Threshold& threshold : thresholds)
        addStepper(section, threshold.look, threshold.range, threshold.property, enabled);
}
