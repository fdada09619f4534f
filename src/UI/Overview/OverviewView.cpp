#include "UI/Overview/OverviewView.h"

#include "AppModel.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SamplingTexts.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Overview/AlertStripView.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/Overview/GroupRow.h"
#include "UI/Overview/IncidentDialog.h"
#include "UI/Overview/MetricTile.h"
#include "UI/Processes/EndDialog.h"
#include "UI/Sessions/SessionTexts.h"

#include <QHBoxLayout>
#include <QScrollBar>

#include <algorithm>
#include <functional>

using Theme::TextStyle;

namespace {

TextLabel* heading(const QString& text) {
    auto* label = new TextLabel(TextStyle::title3, QFont::Bold);
    label->setPlainText(text);
    return label;
}

} // namespace

OverviewView::OverviewView(AppModel& model, std::shared_ptr<MachineDetails> machine, QWidget* parent)
    : QScrollArea(parent)
    , m_model(model)
    , m_machine(std::move(machine))
    , m_dashboard(new QWidget)
    , m_alerts(new AlertStripView)
    , m_noGroups((new TextLabel(TextStyle::callout))->secondary()->wrapped()) {
    auto* page = makeScrollingPage(this, Theme::pageMargins, 0);
    page->addWidget(m_dashboard);
    auto* column = new QVBoxLayout(m_dashboard);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::pageSpacing);
    column->addLayout(makeHeader());
    column->addWidget(m_alerts);
    column->addLayout(makeTiles());
    column->addLayout(makeGroups());
    column->addStretch();
    setFocusPolicy(Qt::NoFocus); // no stop without a ring
    setAccessibleName(tr("Overview"));

    connect(m_alerts, &AlertStripView::actionRequested, this, &OverviewView::actOn);
    connect(m_alerts, &AlertStripView::detailsRequested, this, &OverviewView::showDetails);
    refreshOnScreen(this, {&m_model}, [this] { refresh(); });
}

QLayout* OverviewView::makeHeader() {
    auto* freeRAM = new PushButton(tr("Free RAM"), PushButton::Look::normal, QStringLiteral("memorychip"));
    auto* widget = new PushButton(tr("Floating Widget"), PushButton::Look::normal,
                                  QStringLiteral("rectangle.on.rectangle"));
    connect(freeRAM, &QPushButton::clicked, this, &OverviewView::openFreeRAM);
    connect(widget, &QPushButton::clicked, this, &OverviewView::widgetToggled);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(heading(tr("Live")), 1);
    row->addWidget(freeRAM);
    row->addWidget(widget);
    return row;
}

void OverviewView::openFreeRAM() {
    (new FreeRAMSheet(m_model, window()))->open();
}

QLayout* OverviewView::makeTiles() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::gridSpacing);
    for (qsizetype i = 0; i < Metrics::all({}, {}, {}).size(); ++i) {
        m_tiles.append(new MetricTile);
        row->addWidget(m_tiles.last(), 1);
        connect(m_tiles.last(), &MetricTile::clicked, this,
                [this, i] { openPage(static_cast<DetailPage::Kind>(i)); });
    }
    return row;
}

QLayout* OverviewView::makeGroups() {
    auto* column = new QVBoxLayout;
    column->setSpacing(Theme::rowSpacing);
    column->addWidget(heading(tr("Groups")));
    column->addWidget(m_noGroups);
    for (const ProcGroup group : allCases<ProcGroup>()) {
        auto* row = new GroupRow(group);
        row->hide();
        connect(row, &GroupRow::toggled, this, [this, group] { toggle(group); });
        connect(row, &GroupRow::quitRequested, this,
                [this](const ProcSample& process) { askToEnd(process, false); });
        connect(row, &GroupRow::forceKillRequested, this,
                [this](const ProcSample& process) { askToEnd(process, true); });
        column->addWidget(row);
        m_groupRows.append(row);
    }
    return column;
}

void OverviewView::openPage(DetailPage::Kind kind) {
    closePage();
    DetailPage*& page = m_pages[kind];
    if (!page) {
        page = DetailPage::make(kind, m_model, m_machine);
        widget()->layout()->addWidget(page);
        connect(page, &DetailPage::left, this, [this, kind] {
            closePage();
            m_tiles[static_cast<qsizetype>(kind)]->setFocus(Qt::OtherFocusReason);
        });
    }
    m_page = page;
    m_dashboard->hide();
    page->show();
    page->focusBack();
    verticalScrollBar()->setValue(0);
}

void OverviewView::closePage() {
    if (!m_page)
        return;
    m_page->hide();
    m_page = nullptr;
    m_dashboard->show();
    refresh();
}

void OverviewView::refresh() {
    if (m_page) // it reads for itself
        return;
    m_model.wantSessions();
    m_model.memoryLedger().wantAll();
    m_alerts->set(m_model.alerts(), [this](const QString& id) { return m_model.incident(id) != nullptr; });
    refreshTiles();
    refreshGroups();
}

void OverviewView::refreshTiles() {
    const QList<Metric> metrics =
        Metrics::all(m_model.systemSample(), m_model.systemHistory(), m_model.memoryLineUp());
    for (qsizetype i = 0; i < metrics.size(); ++i)
        m_tiles[i]->set(metrics[i]);
}

void OverviewView::refreshGroups() {
    const QList<GroupRollup>& groups = m_model.groups();
    const qsizetype sessions = m_model.sessionReport().sessions.size();
    m_groupRows[static_cast<qsizetype>(ProcGroup::agents)]->setNote(
        sessions > 0 ? SessionTexts::count(sessions) : QString());
    for (GroupRow* row : std::as_const(m_groupRows))
        row->setVisible(!groups.isEmpty());
    m_noGroups->setVisible(groups.isEmpty());
    m_noGroups->setPlainText(SamplingTexts::nothing(m_model.isPaused()));
    for (const GroupRollup& rollup : groups) {
        const bool expanded = m_expanded == rollup.group;
        m_groupRows[static_cast<qsizetype>(rollup.group)]->set(
            rollup, m_model.systemSample().memTotalBytes, expanded,
            expanded ? heldMembers(rollup.group) : QList<ProcSample>());
    }
}

/// Returns the members. While one of them is in use, those of before keep their places, what has ended too:
/// no button moves to another process.
QList<ProcSample> OverviewView::heldMembers(ProcGroup group) {
    QList<ProcSample> now = members(group);
    if (!m_groupRows[static_cast<qsizetype>(group)]->isInUse())
        return m_held = now;
    for (ProcSample& shown : m_held) {
        const auto found = std::ranges::find(now, shown.identity(), &ProcSample::identity);
        if (found == now.end())
            continue;
        shown = *found;
        now.erase(found);
    }
    return m_held += now;
}

/// Ends the process, after a question where more depends on it.
void OverviewView::askToEnd(const ProcSample& process, bool force) {
    const auto end = [this, force](const QList<ProcSample>& chosen) {
        for (const ProcSample& each : chosen)
            force ? m_model.actions().forceKillProcess(each) : m_model.actions().quitProcess(each);
    };
    if (EndDialog::isNeeded(m_model, {process}))
        EndDialog::ask(this, m_model, {process}, force, end);
    else
        end({process});
}

QList<ProcSample> OverviewView::members(ProcGroup group) const {
    QList<ProcSample> result;
    for (const ProcSample& process : m_model.processes()) {
        if (process.group == group)
            result.append(process);
    }
    return result;
}

void OverviewView::actOn(const Alert& alert) {
    const qint32 pid = alert.actionPid.value_or(0);
    const ProcSample* listed = m_model.process(pid);
    if (alert.actionTarget == QStringLiteral("session")) {
        if (listed)
            Q_EMIT endSessionRequested(listed->identity());
        return;
    }
    ProcSample named;
    named.pid = pid;
    m_model.actions().quitProcess(listed ? *listed : named);
}

void OverviewView::showDetails(const QString& alertId) {
    if (const Incident* incident = m_model.incident(alertId))
        (new IncidentDialog(*incident, window()))->open();
}

void OverviewView::toggle(ProcGroup group) {
    m_expanded = m_expanded == group ? std::nullopt : std::optional(group);
    refreshGroups();
}
