#pragma once

#include "Platform/MachineDetails.h"
#include "UI/Overview/DetailPage.h"

class FlowGrid;

/// The load of the processor: all of it over the history, and each core since the page was opened.
class CpuPage : public DetailPage {
    Q_OBJECT

public:
    CpuPage(AppModel& model, std::shared_ptr<MachineDetails> machine);

    /// Returns the load of each core between two readings, in percent; nothing where their number differs.
    static QList<double> loads(const QList<CoreTicks>& before, const QList<CoreTicks>& now);

protected:
    void refresh() override;

private:
    void refreshCores();

    Graph* m_all;
    FlowGrid* m_grid;
    QList<Graph*> m_cores;
    QList<CoreTicks> m_ticks;
    Instant m_readAt;
    SeriesLog m_log;
};
