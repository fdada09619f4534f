#pragma once

#include "UI/Overview/DetailPage.h"

class FlowGrid;

/// The load of the processor over the history: all of it, and each core.
class CpuPage : public DetailPage {
    Q_OBJECT

public:
    CpuPage(AppModel& model, std::shared_ptr<MachineDetails> machine);

protected:
    void refresh() override;

private:
    void refreshCores();

    Graph* m_all;
    FlowGrid* m_grid;
    QList<Graph*> m_cores;
};
