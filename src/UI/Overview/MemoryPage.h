#pragma once

#include "UI/Overview/DetailPage.h"

/// What is in memory over the history: programs, the kernel and the compressor stacked, swap and pressure,
/// the groups and the cache.
class MemoryPage : public DetailPage {
    Q_OBJECT

public:
    MemoryPage(AppModel& model, std::shared_ptr<MachineDetails> machine);

protected:
    void refresh() override;

private:
    void refreshUse();
    void refreshWaiting();
    void refreshCache();
    void refreshGroups();

    Graph* m_used;
    Graph* m_swap;
    Graph* m_pressure;
    Graph* m_groups;
    Graph* m_cache;
};
