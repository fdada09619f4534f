#include "UI/Overview/MemoryPage.h"

#include "AppModel.h"
#include "Core/Translations.h"

#include <QVBoxLayout>
#include <QtNumeric>

#include <algorithm>

using Theme::Role;

MemoryPage::MemoryPage(AppModel& model, std::shared_ptr<MachineDetails> machine)
    : DetailPage(tr("Memory"), model, std::move(machine))
    , m_used(addGraph(tr("In use"), Graph::Unit::bytes))
    , m_swap(addGraph(tr("Swap in use"), Graph::Unit::bytes))
    , m_pressure(addGraph(tr("Time that programs waited for memory"), Graph::Unit::percent))
    , m_groups(addGraph(tr("Groups"), Graph::Unit::bytes))
    , m_cache(addGraph(tr("File cache"), Graph::Unit::bytes)) {
    column()->addStretch();
}

void MemoryPage::refresh() {
    model().memoryLedger().wantAll();
    refreshUse();
    refreshWaiting();
    refreshGroups();
    refreshCache();
}

void MemoryPage::refreshUse() {
    QList<double> programs, kernel, compressed, swap;
    for (const SystemSample& sample : model().systemHistory()) {
        const quint64 fixed = sample.memWiredBytes + sample.memCompressedBytes;
        programs.append(static_cast<double>(sample.memUsedBytes - std::min(fixed, sample.memUsedBytes)));
        kernel.append(static_cast<double>(sample.memWiredBytes));
        compressed.append(static_cast<double>(sample.memCompressedBytes));
        swap.append(static_cast<double>(sample.swapUsedBytes));
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
                 .series = {{QString(), Role::orange, swap}},
                 .isStacked = true,
                 .top = static_cast<double>(last.swapTotalBytes)});
}

void MemoryPage::refreshWaiting() {
    QList<double> some, full;
    for (const SystemSample& sample : model().systemHistory()) {
        const PressureLevel unknown{.some = qQNaN(), .full = qQNaN()};
        const PressureLevel level = sample.memoryPressure.value_or(unknown);
        some.append(level.some);
        full.append(level.full);
    }
    m_pressure->setVisible(model().systemSample().memoryPressure.has_value());
    m_pressure->set(
        {.times = historyTimes(),
         .series = {{tr("Some programs"), Role::orange, some}, {tr("All programs"), Role::red, full}},
         .isStacked = false,
         .top = 100});
}

void MemoryPage::refreshCache() {
    QList<double> cache;
    for (const SystemSample& sample : model().systemHistory())
        cache.append(sample.memCacheBytes ? static_cast<double>(*sample.memCacheBytes) : qQNaN());
    m_cache->setVisible(model().systemSample().memCacheBytes.has_value());
    m_cache->set({.times = historyTimes(), .series = {{QString(), Role::blue, cache}}, .isStacked = true});
}

void MemoryPage::refreshGroups() {
    QStringList names;
    for (const ProcGroup group : allCases<ProcGroup>())
        names.append(Translations::of(group));
    const FigureHistory& history = model().groupHistory();
    m_groups->set({.times = history.times, .series = colored(names, history), .isStacked = true});
}
