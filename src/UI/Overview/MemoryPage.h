#pragma once

#include "UI/Overview/DetailPage.h"

/// What is in memory: programs, the kernel and the compressor stacked over the history, swap and pressure;
/// the groups and the cache since the page was opened.
class MemoryPage : public DetailPage {
    Q_OBJECT

public:
    MemoryPage(AppModel& model, std::shared_ptr<MachineDetails> machine);

protected:
    void refresh() override;

private:
    void refreshHistory();

    Graph* m_used;
    Graph* m_swap;
    Graph* m_pressure;
    Graph* m_groups;
    Graph* m_cache;
    SeriesLog m_groupLog;
    SeriesLog m_cacheLog;
};
