#include "UI/Settings/AlertsTab.h"

using namespace Qt::StringLiterals;

AlertsTab::AlertsTab(Preferences& prefs, QWidget* parent)
    : SettingsForm(prefs, u"Alerts"_s, parent) {
    addRule(u"Memory"_s, u"Low RAM warning"_s, prefs.alertRAMLowEnabled,
            {{{u"Free RAM threshold"_s, u"%1 GB"_s, 1}, {0.5, 16, 0.5}, prefs.alertRAMLowFreeGB}});
    addRule(u"CPU"_s, u"CPU saturation"_s, prefs.alertCPUHotEnabled,
            {{{u"CPU threshold"_s, u"%1%"_s}, {50, 100, 5}, prefs.alertCPUHotPercent}});
    addRule(u"Thermal"_s, u"Thermal pressure warning"_s, prefs.alertThermalEnabled, {});
    addRule(u"Idle agents"_s, u"Flag idle Claude / agentic processes"_s, prefs.alertIdleAgentEnabled,
            {{{u"Min idle"_s, u"%1 min"_s}, {1, 120, 1}, prefs.alertIdleAgentMinIdleMin},
             {{u"Min RAM"_s, u"%1 MB"_s}, {100, 4000, 100}, prefs.alertIdleAgentMinRSSMB}});
    addRule(u"Browsers"_s, u"Browser RAM dominance"_s, prefs.alertBrowserHogEnabled,
            {{{u"Of total RAM"_s, u"%1%"_s}, {10, 80, 5}, prefs.alertBrowserHogPercentTotal}});
    addRule(u"Caches"_s, u"Caches reclaimable"_s, prefs.alertCachesBigEnabled,
            {{{u"Threshold"_s, u"%1 GB"_s}, {1, 50, 1}, prefs.alertCachesBigGB}});
}

void AlertsTab::addRule(const QString& title, const QString& toggle, Property<bool>& enabled,
                        const QList<Threshold>& thresholds) {
    auto* section = addSection(title);
    addToggle(section, toggle, enabled);
    for (const Threshold& threshold : thresholds)
        addStepper(section, threshold.look, threshold.range, threshold.property, enabled);
}
