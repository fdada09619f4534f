#include "UI/Optimize/OptimizeView.h"

#include "AppModel.h"
#include "Preferences.h"
#include "UI/Cleanup/CleanupConfirmation.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Cleanup/LeaveOutOffer.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Optimize/AutoOptimizeCard.h"
#include "UI/Optimize/CachesCard.h"
#include "UI/Optimize/MCPCard.h"
#include "UI/Optimize/MemoryCard.h"
#include "UI/Optimize/QuickKillsCard.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/Style/Theme.h"

#include <QPointer>
#include <QVBoxLayout>

using namespace std::chrono_literals;

namespace {

constexpr int optimizeCardGap = 18;
constexpr auto noticeLifetime = 6s;

} // namespace

OptimizeView::OptimizeView(AppModel& model, Preferences& preferences, QWidget* parent)
    : QScrollArea(parent)
    , m_model(model)
    , m_preferences(preferences)
    , m_notice(new Notice(QStringLiteral("checkmark.seal.fill"), noticeLifetime, this))
    , m_memory(new MemoryCard)
    , m_quickKills(new QuickKillsCard)
    , m_mcp(new MCPCard)
    , m_caches(new CachesCard)
    , m_auto(new AutoOptimizeCard) {
    auto* column = makeScrollingPage(this, Theme::pageMargins, optimizeCardGap);
    const QList<QWidget*> parts = {m_memory, m_quickKills, m_mcp, m_caches, m_auto};
    for (QWidget* part : parts)
        column->addWidget(part);
    column->addStretch();
    setFocusPolicy(Qt::NoFocus); // no stop without a ring
    setAccessibleName(tr("Optimize"));
    connectCards();
    refreshOnScreen(this, {&m_model, &m_preferences}, [this] { refresh(); });
}

void OptimizeView::connectCards() {
    connect(m_memory, &MemoryCard::freeRAMRequested, this,
            [this] { (new FreeRAMSheet(m_model, window()))->open(); });
    connect(m_memory, &MemoryCard::nudgeRequested, this, &OptimizeView::nudge);
    connect(m_memory, &MemoryCard::purgeRequested, this, &OptimizeView::purge);
    connect(m_memory, &MemoryCard::stopRequested, this, [this] { m_stopPurge.request_stop(); });
    connect(m_quickKills, &QuickKillsCard::killRequested, this, &OptimizeView::killPreset);
    connect(m_mcp, &MCPCard::killOrphansRequested, this, &OptimizeView::killOrphans);
    connect(m_mcp, &MCPCard::quitRequested, &m_model.actions(), &ProcessActions::quitServer);
    connect(m_caches, &CachesCard::cleanAllRequested, this, &OptimizeView::confirmCleanAll);
    connect(m_caches, &CachesCard::cancelRequested, &m_model.cleanup(), &CacheCleanup::cancel);
    connect(m_auto, &AutoOptimizeCard::switched, &m_model, &AppModel::setAutoOptimizeEnabled);
}

void OptimizeView::refresh() {
    m_quickKills->refresh(m_model.actions(), m_preferences.quickKillPresets());
    m_mcp->refresh(m_model.mcpReport());
    m_caches->refresh(m_model.cleanup());
    m_auto->refresh(m_model.autoOptimizeEnabled());
}

void OptimizeView::toast(const QString& message, const QString& failure) {
    m_notice->show(message, failure);
}

void OptimizeView::nudge() {
    m_model.actions().nudgeMemory().then([self = QPointer<OptimizeView>(this)](const Outcome& nudged) {
        if (!self)
            return;
        self->m_memory->setNudgeFailure(nudged.reason);
        self->toast(nudged.done ? tr("Sent memory_pressure -l warn") : tr("memory_pressure failed"),
                    nudged.reason);
    });
}

void OptimizeView::purge() {
    m_memory->setPurging(true);
    m_stopPurge = {};
    m_model.actions()
        .purgeMemory(m_stopPurge.get_token())
        .then([self = QPointer<OptimizeView>(this)](const Outcome& purged) {
            if (!self)
                return;
            self->m_memory->setPurging(false);
            self->m_memory->setPurgeFailure(purged.reason);
            self->toast(purged.done ? tr("Inactive memory purged") : tr("Purge cancelled or failed"),
                        purged.reason);
        });
}

void OptimizeView::killPreset(const QuickKillPreset& preset) {
    const auto result = m_model.actions().quickKill(preset.pattern, preset.name, preset.minIdleMinutes,
                                                    preset.minRSSMB, preset.force);
    toast(preset.outcomeMessage(result.matched, result.killed));
}

void OptimizeView::killOrphans() {
    const int killed = m_model.actions().killOrphanMCPs(false);
    toast(killed > 0 ? tr("Killed %1 orphan MCP server(s)").arg(killed) : tr("No orphan MCPs to kill"));
}

void OptimizeView::confirmCleanAll() {
    const QList<CacheTarget> targets = m_model.cleanup().targetsToClean();
    if (!m_preferences.askBeforeCleaningAll())
        return cleanAll(targets);
    CleanupConfirmation::askAll(window(), this, m_model.cleanup(), targets, m_model.systemSample().timestamp,
                                [this](const QList<CacheTarget>& confirmed, const QStringList& leftOut) {
                                    cleanAll(confirmed);
                                    LeaveOutOffer::follow(window(), m_preferences, leftOut);
                                });
}

void OptimizeView::cleanAll(const QList<CacheTarget>& targets) {
    m_caches->setCleaning(true);
    m_model.cleanup().cleanAll(targets).then(
        [self = QPointer<OptimizeView>(this), asked = targets.size()](std::pair<int, quint64> cleaned) {
            if (!self)
                return;
            const CleanupReport& report = self->m_model.cleanup().report();
            self->m_caches->setCleaning(false);
            self->refresh();
            self->toast(CleanupTexts::outcome(asked, cleaned, report),
                        report.failures.isEmpty() ? QString() : CleanupTexts::unfinished(report));
        });
}
