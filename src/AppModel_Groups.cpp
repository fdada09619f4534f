#include "AppModel.h"
#include "Preferences.h"

std::optional<ProcGroup> AppModel::chosenGroup(const ProcSample& process) const {
    const auto choices = m_preferences.programGroups();
    const auto found = choices.constFind(ProcessGrouper::programKey(process));
    return found == choices.constEnd() ? std::nullopt : std::optional(*found);
}

void AppModel::chooseGroup(const QList<ProcSample>& processes, std::optional<ProcGroup> group) {
    QSet<QString> programs;
    for (const ProcSample& process : processes)
        programs.insert(ProcessGrouper::programKey(process));
    m_preferences.storeProgramGroups(programs, group);
    m_grouper.setChoices(m_preferences.programGroups());
    publish(m_processes, m_grouper.classify(m_processes));
    publish(m_groups, GroupRollup::build(m_processes));
}
