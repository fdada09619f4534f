#include "UI/Processes/ProcessesView.h"

#include "AppModel.h"
#include "Core/Relief/NukePreview.h"
#include "Preferences.h"
#include "UI/Inspector/InspectorPanel.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/SamplingTexts.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Processes/EndDialog.h"
#include "UI/Processes/NothingFound.h"
#include "UI/Processes/ProcessControls.h"
#include "UI/Processes/ProcessMenu.h"
#include "UI/Processes/ProcessTableView.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace std::chrono_literals;

namespace {

const QString inspectorKey = QStringLiteral("ui.processes.details");
constexpr Theme::Length inspectorWidth{300};
constexpr auto longestLeave = 10s; // after that a process has evidently stayed

} // namespace

ProcessesView::ProcessesView(AppModel& model, Preferences& preferences, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_preferences(preferences)
    , m_controls(new ProcessControls)
    , m_notice(new Notice(QStringLiteral("bolt.fill"), 0ms))
    , m_stack(new QStackedWidget)
    , m_table(new ProcessTableView(preferences))
    , m_nothing(new NothingFound)
    , m_counts((new TextLabel(Theme::TextStyle::caption))->secondary())
    , m_inspectorCard(new Card)
    , m_inspector(new InspectorPanel(model))
    , m_menu(new ProcessMenu(model, this)) {
    m_facts.facts = &model.facts();
    m_table->rows().setFacts(&m_facts);
    layOut();
    connectParts();
    connectInspector();
    m_table->markSort(m_controls->query().sortBy, false);
    refreshOnScreen(this, {&m_model}, [this] { refresh(); });
    refreshOnScreen(this, {&m_model.facts()}, [this] {
        if (SearchWords(m_controls->query().search).port())
            refresh();
        else
            m_table->viewport()->update();
    });
}

void ProcessesView::layOut() {
    auto* card = new Card;
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(Theme::tableCardMargins);
    inside->addWidget(m_stack);
    m_stack->addWidget(m_table);
    m_stack->addWidget(m_nothing);
    auto* beside = new QVBoxLayout(m_inspectorCard);
    beside->setContentsMargins(Theme::tableCardMargins);
    beside->addWidget(m_inspector);
    Theme::fixWidth(m_inspectorCard, inspectorWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(card, 1);
    row->addWidget(m_inspectorCard);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::sheetMargins);
    column->setSpacing(12);
    column->addWidget(m_controls);
    column->addWidget(m_notice);
    column->addLayout(row, 1);
    column->addWidget(m_counts);
}

void ProcessesView::connectParts() {
    auto* search = new QShortcut(QKeySequence::Find, this);
    connect(search, &QShortcut::activated, m_controls, &ProcessControls::focusSearch);
    auto* anew = new QShortcut(QKeySequence(Qt::Key_F5), this);
    connect(anew, &QShortcut::activated, this, [this] {
        m_model.tickEarly();
        showQuery();
    });
    connect(m_controls, &ProcessControls::changed, this, &ProcessesView::showQuery);
    connect(m_nothing, &NothingFound::searchLifted, m_controls, &ProcessControls::clearSearch);
    connect(m_nothing, &NothingFound::groupLifted, m_controls, &ProcessControls::clearGroup);
    connect(m_nothing, &NothingFound::sizeLifted, m_controls, &ProcessControls::clearMinRAM);
    connect(m_table, &ProcessTableView::sortRequested, m_controls, &ProcessControls::sortBy);
    connect(m_table, &ProcessTableView::columnsChanged, this, &ProcessesView::showQuery);
    connect(m_controls, &ProcessControls::columnsMenuOpens, m_table, &ProcessTableView::fillColumnsMenu);
    connect(m_table, &ProcessTableView::triggered, this, &ProcessesView::act);
    connect(m_table, &ProcessTableView::endRequested, this, &ProcessesView::endRows);
    connect(m_table, &ProcessTableView::foldToggled, this, &ProcessesView::toggleFold);
    connect(m_table, &ProcessTableView::menuOpens, this, [this](QMenu& menu, const ProcessTableRow& row) {
        m_menu->fill(menu, m_table->rows(), row, m_table->selectedRows());
    });
    connect(m_menu, &ProcessMenu::triggered, this, &ProcessesView::act);
    connect(m_menu, &ProcessMenu::endRequested, this, &ProcessesView::endRows);
    connect(m_menu, &ProcessMenu::quitRequested, this, &ProcessesView::confirmSweep);
}

void ProcessesView::connectInspector() {
    auto* toggle = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_I), this);
    connect(toggle, &QShortcut::activated, this, [this] { showInspector(m_inspectorCard->isHidden()); });
    connect(m_controls, &ProcessControls::detailsToggled, this,
            [this] { showInspector(m_inspectorCard->isHidden()); });
    connect(m_table, &ProcessTableView::detailsRequested, this, [this] { showInspector(true); });
    connect(m_menu, &ProcessMenu::detailsRequested, this, [this] { showInspector(true); });
    connect(m_table, &ProcessTableView::currentMoved, this, &ProcessesView::inspectCurrent);
    connect(m_inspector, &InspectorPanel::closed, this, [this] {
        showInspector(false);
        m_table->setFocus(Qt::OtherFocusReason);
    });
    connect(m_inspector, &InspectorPanel::endRequested, this,
            [this](const ProcSample& process, bool force) { askToEnd({process}, force); });
    connect(m_inspector, &InspectorPanel::processRequested, this, [this](const ProcSample& process) {
        if (!m_table->select(process))
            m_inspector->setProcess(process);
    });
    showInspector(m_preferences.file().boolean(inspectorKey).value_or(false));
}

void ProcessesView::showInspector(bool isShown) {
    m_inspectorCard->setVisible(isShown);
    m_table->setCompact(isShown);
    if (m_preferences.file().boolean(inspectorKey).value_or(false) != isShown)
        m_preferences.file().store(inspectorKey, isShown);
    inspectCurrent();
    m_inspector->refresh();
}

void ProcessesView::inspectCurrent() {
    const ProcSample* current = m_table->current();
    if (current && m_inspectorCard->isVisibleTo(this))
        m_inspector->setProcess(*current);
}

/// Gathers what the columns on show and the sort need, and asks for what is read only on show.
void ProcessesView::prepareFacts(const ProcessQuery& query) {
    using Need = ProcessColumn::Need;
    const ProcessColumn* sorted = ProcessColumns::withId(query.sortBy);
    const auto isNeeded = [&](Need need) { return m_table->shows(need) || (sorted && sorted->need == need); };
    m_facts.names.clear();
    m_facts.sessions.clear();
    if (isNeeded(Need::names)) {
        for (const ProcSample& process : m_model.processes())
            m_facts.names.insert(process.pid, process.name);
    }
    if (isNeeded(Need::sessions)) {
        m_model.wantSessions();
        for (const Session& session : m_model.sessionReport().sessions) {
            for (const SessionProcess& member : session.processes)
                m_facts.sessions.insert(member.process.pid, session.title());
        }
    }
    if (sorted && sorted->need == Need::disk)
        m_model.facts().wantDisk(m_model.processes());
    else if (m_table->shows(Need::disk))
        m_model.facts().wantDisk(m_table->processesInView());
    const SearchWords words(query.search);
    if (words.port())
        m_model.facts().wantListeners(*words.port(), m_model.processes());
    m_table->rows().setWords(words);
    m_table->rows().setProtected(m_model.protectedProcesses());
}

QList<ProcessTableRow> ProcessesView::rows(const ProcessQuery& query, bool isHeld) {
    QList<ProcessTableRow> shown =
        query.rows({.processes = m_model.processes(),
                    .facts = m_facts,
                    .folded = m_folded,
                    .held = isHeld ? m_table->places() : QHash<ProcessRowKey, int>()});
    markLeaving(shown);
    showCounts(query, shown.size());
    return shown;
}

void ProcessesView::showQuery() {
    const ProcessQuery query = m_controls->query();
    prepareFacts(query);
    m_table->show(rows(query, false), query.listing);
    const ProcessColumn* sorted = ProcessColumns::withId(query.sortBy);
    m_table->markSort(query.sortBy, (sorted->order.isAscending || !sorted->order.figure) != query.isTurned);
}

void ProcessesView::refresh() {
    QList<qint32> inView;
    for (const ProcSample& process : m_table->processesInView())
        inView.append(process.pid);
    m_model.memoryLedger().wantAll();
    m_model.memoryLedger().wantOnShow(inView);
    const ProcessQuery query = m_controls->query();
    prepareFacts(query);
    m_table->update(rows(query, m_table->isHeld()));
    m_inspector->refresh();
}

/// Says how many processes are shown of how many, and shows the empty state without any.
void ProcessesView::showCounts(const ProcessQuery& query, qsizetype shown) {
    m_stack->setCurrentIndex(shown == 0 ? 1 : 0);
    const auto all = static_cast<int>(m_model.processes().size());
    if (all == 0)
        m_nothing->setNoProcesses(SamplingTexts::nothing(m_model.isPaused()));
    else if (shown == 0)
        m_nothing->set(query, query.hidden({.processes = m_model.processes(), .facts = m_facts}));
    QString text = tr("%1 of %n process(es)", nullptr, all).arg(shown);
    if (query.listing == ProcessListing::byName)
        text = tr("%1 names of %n process(es)", nullptr, all).arg(shown);
    if (m_model.isPaused() && all > 0)
        text = tr("%1, as they were when power became low.").arg(text);
    else if (m_table->isHeld())
        text = tr("%1. The order is held while a row is in use; F5 sorts anew.").arg(text);
    m_counts->setPlainText(text);
}

/// Marks the rows of processes that were asked to end, for as long as these may take it up.
void ProcessesView::markLeaving(QList<ProcessTableRow>& rows) {
    const auto now = std::chrono::steady_clock::now();
    m_leaving.removeIf([now](const auto& each) { return now - each.value() > longestLeave; });
    if (m_leaving.isEmpty())
        return;
    const auto isLeaving = [this](const ProcSample& process) {
        return m_leaving.contains(ProcessRowKey::of(process));
    };
    for (ProcessTableRow& row : rows)
        row.isLeaving = std::ranges::all_of(m_table->rows().targetsOf(row), isLeaving);
}

void ProcessesView::toggleFold(const ProcessTableRow& row) {
    const ProcessRowKey key = ProcessRowKey::of(row.first);
    if (!m_folded.remove(key))
        m_folded.insert(key);
    refresh();
}

void ProcessesView::act(RowAction action, const ProcessTableRow& row) {
    if (action == RowAction::sweep)
        confirmSweep(m_model.actions().previewForName(row.first.name));
    else
        end(m_table->rows().targetsOf(row), action == RowAction::forceKill);
}

void ProcessesView::endRows(const QList<ProcessTableRow>& rows, bool force) {
    QList<ProcSample> processes;
    for (const ProcessTableRow& row : rows) {
        if (!row.isGone)
            processes += m_table->rows().targetsOf(row);
    }
    if (!processes.isEmpty())
        askToEnd(processes, force);
}

void ProcessesView::askToEnd(const QList<ProcSample>& processes, bool force) {
    if (EndDialog::isNeeded(m_model, processes))
        EndDialog::ask(this, m_model, processes, force,
                       [this, force](const QList<ProcSample>& chosen) { end(chosen, force); });
    else
        end(processes, force);
}

void ProcessesView::end(const QList<ProcSample>& processes, bool force) {
    const auto now = std::chrono::steady_clock::now();
    for (const ProcSample& process : processes) {
        m_leaving.insert(ProcessRowKey::of(process), now);
        if (force)
            m_model.actions().forceKillProcess(process);
        else
            m_model.actions().quitProcess(process);
    }
}

void ProcessesView::confirmSweep(const NukePreview& preview) {
    auto* dialog = new ConfirmDialog(window(), preview.dialogTitle(), preview.dialogMessage());
    const auto add = [this, dialog, preview](const QString& text, auto sweep) {
        auto* button = dialog->addAction(text, PushButton::Look::destructive);
        connect(button, &QPushButton::clicked, this, sweep);
    };
    if (preview.parentAppName) {
        add(preview.quitButton(), [this, preview] { quitApplication(preview, false); });
        add(preview.forceQuitButton(), [this, preview] { quitApplication(preview, true); });
    } else {
        add(preview.killButton(),
            [this, preview] { m_notice->show(preview.killOutcome(m_model.actions().nuke(preview))); });
    }
    dialog->open();
}

void ProcessesView::quitApplication(const NukePreview& preview, bool force) {
    m_model.actions()
        .nukeGracefulApp(preview, *preview.parentAppName, force)
        .then([self = QPointer<ProcessesView>(this)](const QString& outcome) {
            if (self)
                self->m_notice->show(outcome);
        });
}
