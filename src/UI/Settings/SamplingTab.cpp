#include "UI/Settings/SamplingTab.h"

#include "Core/Translations.h"
#include "UI/Kit/FormSection.h"
#include "UI/Kit/TextLabel.h"

static const QList<double> intervals = {1, 2, 5, 10}; // seconds

SamplingTab::SamplingTab(Preferences& preferences, QWidget* parent)
    : SettingsForm(preferences, tr("Sampling"), parent) {
    auto* cadence = addSection(tr("Sampling cadence"));
    addPicker<double>(
        cadence, tr("Poll interval"), intervals,
        [](double seconds) { return tr("%1s").arg(static_cast<int>(seconds)); },
        preferences.pollIntervalSeconds);
    const auto retentions = allCases<HistoryRetention>();
    addPicker<HistoryRetention>(cadence, tr("History retention"), {retentions.begin(), retentions.end()},
                                Translations::of<HistoryRetention>, preferences.historyRetention);
    auto* kept = (new TextLabel(Theme::TextStyle::caption))->secondary();
    cadence->addNote(kept);
    addDisplay([kept, &preferences] {
        kept->setPlainText(
            tr("Keeps %1 samples for the Overview sparklines.").arg(preferences.historyRetentionSamples()));
    });
    addToggle(addSection(tr("Power")), tr("Pause sampling on Low Power Mode"), preferences.pauseOnLowPower);
}
