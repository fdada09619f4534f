#include "UI/Overview/CpuPage.h"

#include "AppModel.h"
#include "Platform/MachineDetails.h"
#include "UI/Kit/FlowGrid.h"

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

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

QList<double> CpuPage::loads(const QList<CoreTicks>& before, const QList<CoreTicks>& now) {
    QList<double> result;
    if (before.size() != now.size())
        return result;
    for (qsizetype i = 0; i < now.size(); ++i) {
        const auto busy = static_cast<double>(now[i].busy - std::min(before[i].busy, now[i].busy));
        const double all = busy + static_cast<double>(now[i].idle - std::min(before[i].idle, now[i].idle));
        result.append(all > 0 ? busy / all * fullLoad : 0);
    }
    return result;
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
    const Instant at = model().systemSample().timestamp;
    if (std::exchange(m_readAt, at) == at)
        return;
    const QList<CoreTicks> now = machine().coreTicks();
    const QList<double> load = loads(std::exchange(m_ticks, now), now);
    QStringList names;
    for (qsizetype i = 0; i < load.size(); ++i)
        names.append(tr("Core %1").arg(i));
    note(m_log, names, load);
    while (m_cores.size() < names.size()) {
        m_cores.append(new Graph(names[m_cores.size()], Graph::Unit::percent));
        m_cores.last()->setSmall();
        m_grid->addWidget(m_cores.last());
    }
    for (qsizetype i = 0; i < m_cores.size(); ++i) {
        m_cores[i]->setVisible(i < names.size());
        if (i < names.size())
            m_cores[i]->set({.times = m_log.times,
                             .series = {{names[i], Theme::Role::blue, m_log.values[i]}},
                             .isStacked = true,
                             .top = fullLoad});
    }
}
