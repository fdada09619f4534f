#include "AppModel.h"
#include "Cli/Actions.h"
#include "Cli/Commands.h"
#include "Cli/Confirmation.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Preferences.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::optional<QuickKillPreset> presetOf(const QList<QuickKillPreset>& presets, const QString& name) {
    const auto found = std::ranges::find_if(presets, [&name](const QuickKillPreset& each) {
        return each.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == presets.end() ? std::nullopt : std::optional(*found);
}

QString namesOf(const QList<QuickKillPreset>& presets) {
    QStringList names;
    for (const QuickKillPreset& preset : presets)
        names.append(u'\'' + preset.name + u'\'');
    return names.join(u", "_s);
}

ExitStatus act(Run& run, AppModel& model, const QuickKillPreset& preset, QJsonObject document) {
    const auto result = model.actions().quickKill(preset.pattern, preset.name, preset.minIdleMinutes,
                                                  preset.minRSSMB, preset.force);
    document.insert(u"done"_s, true);
    document.insert(u"matched"_s, result.matched);
    document.insert(u"killed"_s, result.killed);
    run.output.print(document, [&](const QJsonObject&) {
        return Table::safe(preset.outcomeMessage(result.matched, result.killed)) + u'\n';
    });
    return result.killed == result.matched ? ExitStatus::done : ExitStatus::notDone;
}

ExitStatus runPreset(Run& run) {
    const QList<QuickKillPreset> presets = run.environment.preferences.quickKillPresets();
    const auto preset = presetOf(presets, run.arguments.constFirst());
    if (!preset) {
        run.output.complain(
            u"no preset '%1'; there are %2"_s.arg(run.arguments.constFirst(), namesOf(presets)));
        return ExitStatus::notDone;
    }
    AppModel& model = *QCoro::waitFor(run.machine.look());
    if (preset->minIdleMinutes > 0 && !run.machine.knowsIdleTimes()) {
        run.output.complain(u"preset: only a Tavrin that runs knows what is idle; start it first"_s);
        return ExitStatus::notDone;
    }
    const auto matches =
        model.actions().quickKillMatches(preset->pattern, preset->minIdleMinutes, preset->minRSSMB);
    QJsonObject document = Actions::head(u"preset"_s, run.machine.origin());
    document.insert(u"preset"_s, preset->name);
    document.insert(u"is_forced"_s, preset->force);
    document.insert(u"processes"_s, Actions::list(matches, run.machine.origin()));
    const Confirmation::Plan plan = {
        .document = document,
        .text = matches.isEmpty()
                    ? Table::safe(preset->outcomeMessage(0, 0)) + u'\n'
                    : Table::safe(preset->summaryLine()) + u'\n' + Actions::text(matches, run.output.style()),
        .question = preset->force ? u"Kill these processes?"_s : u"End these processes?"_s,
        .isEmpty = matches.isEmpty()};
    if (const auto end = Confirmation::settle(run, plan))
        return *end;
    return act(run, model, *preset, document);
}

} // namespace

Command Commands::preset() {
    return {.name = u"preset"_s,
            .arguments = u"NAME"_s,
            .summary = u"Runs a preset of the settings"_s,
            .options = Confirmation::options(),
            .minArguments = 1,
            .maxArguments = 1,
            .run = runPreset};
}
