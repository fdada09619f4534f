#include "UI/Settings/SamplingTab.h"

#include "UI/Kit/FormSection.h"
#include "UI/Kit/TextLabel.h"

static const QList<double> intervals = {1, 2, 5, 10}; // seconds

SamplingTab::SamplingTab(Preferences& preferences, QWidget* parent)
    : SettingsForm(preferences, QStringLiteral("Sampling"), parent) {
    auto* cadence = addSection(QStringLiteral("Sampling cadence"));
    addPicker<double>(
        cadence, QStringLiteral("Poll interval"), intervals,
        [](double seconds) { return QStringLiteral("%1s").arg(static_cast<int>(seconds)); },
        preferences.pollIntervalSeconds);
    const auto retentions = allCases<HistoryRetention>();
    addPicker<HistoryRetention>(cadence, QStringLiteral("History retention"),
                                {retentions.begin(), retentions.end()}, rawValue<HistoryRetention>,
                                preferences.historyRetention);
    auto* kept = (new TextLabel(Theme::TextStyle::caption))->secondary();
    cadence->addNote(kept);
    addDisplay([kept, &preferences] {
        kept->setPlainText(QStringLiteral("Keeps %1 samples for the Overview sparklines.")
                               .arg(preferences.historyRetentionSamples()));
    });
    addToggle(addSection(QStringLiteral("Power")), QStringLiteral("Pause sampling on Low Power Mode"),
              preferences.pauseOnLowPower);
}
