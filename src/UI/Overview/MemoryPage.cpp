#include "UI/Overview/MemoryPage.h"

#include "AppModel.h"
#include "Core/Translations.h"
#include "Platform/MachineDetails.h"

#include <QVBoxLayout>

#include <algorithm>

using Theme::Role;

MemoryPage::MemoryPage(AppModel& model, std::shared_ptr<MachineDetails> machine)
    : DetailPage(tr("Memory"), model, std::move(machine))
    , m_used(addGraph(tr("In use"), Graph::Unit::bytes))
    , m_swap(addGraph(tr("Swap in use"), Graph::Unit::bytes))
    , m_pressure(addGraph(tr("Time that programs waited for memory"), Graph::Unit::percent))
    , m_groups(addGraph(tr("Groups, while this page is open"), Graph::Unit::bytes))
    , m_cache(addGraph(tr("File cache, while this page is open"), Graph::Unit::bytes)) {
    column()->addStretch();
}

void MemoryPage::refresh() {
    model().memoryLedger().wantAll();
    refreshHistory();
    QStringList names;
    QList<double> bytes;
    for (const ProcGroup group : allCases<ProcGroup>()) {
        const auto found = std::ranges::find(model().groups(), group, &GroupRollup::group);
        names.append(Translations::of(group));
        bytes.append(found == model().groups().end() ? 0 : static_cast<double>(found->memory.bytes));
    }
    note(m_groupLog, names, bytes);
    draw(m_groups, m_groupLog, true);
    note(m_cacheLog, {tr("Cache")}, {static_cast<double>(machine().cacheBytes())});
    draw(m_cache, m_cacheLog, true);
}

void MemoryPage::refreshHistory() {
    QList<double> programs, kernel, compressed, swap, some, full;
    bool hasPressure = false;
    for (const SystemSample& sample : model().systemHistory()) {
        const quint64 fixed = sample.memWiredBytes + sample.memCompressedBytes;
        programs.append(static_cast<double>(sample.memUsedBytes - std::min(fixed, sample.memUsedBytes)));
        kernel.append(static_cast<double>(sample.memWiredBytes));
        compressed.append(static_cast<double>(sample.memCompressedBytes));
        swap.append(static_cast<double>(sample.swapUsedBytes));
        const PressureLevel level = sample.memoryPressure.value_or(PressureLevel());
        some.append(level.some);
        full.append(level.full);
        hasPressure = hasPressure || sample.memoryPressure;
    }
    const SystemSample& last = model().systemSample();
    const QList<double> times = historyTimes();
    m_used->set({.times = times,
                 .series = {{tr("Kernel"), Role::purple, kernel},
                            {tr("Compressed"), Role::orange, compressed},
                            {tr("Programs"), Role::blue, programs}},
                 .isStacked = true,
                 .top = static_cast<double>(last.memTotalBytes)});
    m_swap->setVisible(last.swapTotalBytes > 0);
    m_swap->set({.times = times,
                 .series = {{tr("Swap"), Role::orange, swap}},
                 .isStacked = true,
                 .top = static_cast<double>(last.swapTotalBytes)});
    m_pressure->setVisible(hasPressure);
    m_pressure->set(
        {.times = times,
         .series = {{tr("Some programs"), Role::orange, some}, {tr("All programs"), Role::red, full}},
         .isStacked = false,
         .top = 100});
}
