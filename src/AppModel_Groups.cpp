#include "AppModel.h"
#include "Preferences.h"

std::optional<ProcGroup> AppModel::chosenGroup(const ProcSample& process) const {
    const auto chosen = m_preferences.programGroups();
    const auto found = chosen.constFind(ProcessGrouper::programKey(process));
    return found == chosen.constEnd() ? std::nullopt : std::optional(*found);
}

void AppModel::chooseGroup(const ProcSample& process, std::optional<ProcGroup> group) {
    m_preferences.storeProgramGroup(ProcessGrouper::programKey(process), group);
    m_grouper.setChoices(m_preferences.programGroups());
    publish(m_processes, m_grouper.classify(m_processes));
    publish(m_groups, GroupRollup::build(m_processes));
}
