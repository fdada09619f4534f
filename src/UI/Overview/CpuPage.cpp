#include "UI/Overview/CpuPage.h"

#include "AppModel.h"
#include "UI/Kit/FlowGrid.h"

#include <QVBoxLayout>

namespace {

constexpr int coreGraphWidth = 160;
constexpr int coreGap = 12;
constexpr double fullLoad = 100;

} // namespace

CpuPage::CpuPage(AppModel& model, std::shared_ptr<MachineDetails> machine)
    : DetailPage(tr("CPU"), model, std::move(machine))
    , m_all(addGraph(tr("All cores"), Graph::Unit::percent))
    , m_grid(new FlowGrid(coreGraphWidth, coreGap)) {
    column()->addLayout(m_grid);
    column()->addStretch();
}

void CpuPage::refresh() {
    QList<double> load;
    for (const SystemSample& sample : model().systemHistory())
        load.append(sample.cpuPercent);
    m_all->set({.times = historyTimes(),
                .series = {{QString(), Theme::Role::blue, load}},
                .isStacked = true,
                .top = fullLoad});
    refreshCores();
}

void CpuPage::refreshCores() {
    const FigureHistory& history = model().coreHistory();
    const qsizetype count = history.values.size();
    while (m_cores.size() < count) {
        m_cores.append(
            new Graph(tr("Core %1").arg(m_cores.size()), Graph::Unit::percent, Graph::Size::small));
        m_grid->addWidget(m_cores.last());
    }
    for (qsizetype i = 0; i < m_cores.size(); ++i) {
        m_cores[i]->setVisible(i < count);
        if (i < count)
            m_cores[i]->set({.times = history.times,
                             .series = {{QString(), Theme::Role::blue, history.values[i]}},
                             .isStacked = true,
                             .top = fullLoad});
    }
}
