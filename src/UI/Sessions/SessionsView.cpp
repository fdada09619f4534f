#include "UI/Sessions/SessionsView.h"

#include "AppModel.h"
#include "Preferences.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/EmptyState.h"
#include "UI/Kit/Notice.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Sessions/SessionActions.h"
#include "UI/Sessions/SessionControls.h"
#include "UI/Sessions/SessionHeader.h"
#include "UI/Sessions/SessionResultView.h"
#include "UI/Sessions/SessionTexts.h"

#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

enum Page { list, nothing, noMatch };

constexpr Theme::Length emptyTextWidth{460};

/// The button of a row that has the focus, by the session and its place in the row. The rows are reused, so
/// the focus has to follow its session.
class FocusKeeper {
public:
    explicit FocusKeeper(const QWidget& page) {
        QWidget* focused = page.focusWidget();
        if (!focused || !focused->hasFocus())
            return;
        for (QWidget* each = focused; each && !m_row; each = each->parentWidget())
            m_row = qobject_cast<SessionRow*>(each);
        if (!m_row)
            return;
        m_host = m_row->session().host;
        m_place = buttons(*m_row).indexOf(focused);
    }

    /// Moves the focus to the row that shows the session now.
    void restore(const QWidget& page) const {
        if (!m_row || m_place < 0 || m_row->session().host == m_host)
            return;
        for (SessionRow* row : page.findChildren<SessionRow*>()) {
            if (row->isVisibleTo(&page) && row->session().host == m_host)
                buttons(*row)[m_place]->setFocus();
        }
    }

private:
    static QList<QAbstractButton*> buttons(const SessionRow& row) {
        return row.findChildren<QAbstractButton*>();
    }

    SessionRow* m_row = nullptr;
    ProcessIdentity m_host;
    qsizetype m_place = -1;
};

} // namespace

SessionsView::SessionsView(AppModel& model, Preferences& preferences, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_actions(new SessionActions(model, this))
    , m_controls(new SessionControls(preferences.file()))
    , m_notice(new Notice(QStringLiteral("exclamationmark.triangle.fill"), 0ms))
    , m_stack(new QStackedWidget)
    , m_area(new QScrollArea)
    , m_sessionRows([this] {
        auto* row = new SessionRow;
        connect(row, &SessionRow::toggled, this,
                [this](const Session& session) { toggle(keyOf(session.host)); });
        connect(row, &SessionRow::triggered, m_actions, &SessionActions::act);
        connect(row->header(), &RowHeader::stepRequested, this,
                [this, row](int rows) { step(row->header(), rows); });
        m_sessions.rows->addWidget(row);
        return row;
    })
    , m_leftOverRows(makeRemainsPool(m_leftOvers))
    , m_duplicateRows(makeRemainsPool(m_duplicates)) {
    m_stack->addWidget(makePage());
    m_stack->addWidget(makeEmptyPage(new EmptyState(
        QStringLiteral("bubble.prompt"), tr("No sessions"),
        tr("Coding agents that run in a terminal or an editor appear here, each with its MCP servers, dev "
           "servers, browsers and commands, and with what an ended one left running."))));
    auto* noMatchState = new EmptyState(
        QStringLiteral("magnifyingglass"), tr("No sessions match"),
        tr("Every word of the search has to be in the agent, the project, the name, the state, a process or "
           "a port of the session."));
    connect(noMatchState->addButton(tr("Clear search")), &QPushButton::clicked, m_controls,
            &SessionControls::clearSearch);
    m_stack->addWidget(makeEmptyPage(noMatchState));

    auto* top = new QVBoxLayout;
    top->setContentsMargins(Theme::pagePadding, Theme::pagePadding, Theme::pagePadding, 0);
    top->setSpacing(Theme::rowSpacing);
    top->addWidget(m_controls);
    top->addWidget(m_notice);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(top);
    column->addWidget(m_stack, 1);
    setAccessibleName(tr("Sessions"));

    auto* search = new QShortcut(QKeySequence::Find, this);
    connect(search, &QShortcut::activated, m_controls, &SessionControls::focusSearch);
    connect(m_controls, &SessionControls::changed, this, &SessionsView::showReport);
    connect(m_actions, &SessionActions::endingChanged, this, &SessionsView::showReport);
    connect(m_actions, &SessionActions::failed, m_notice,
            [this](const QString& reason) { m_notice->show(reason); });
    connect(m_actions, &SessionActions::ended, this, &SessionsView::addResult);
    showReport();
    refreshOnScreen(this, {&m_model}, [this] { refresh(); });
}

RowPool<RemainsRow> SessionsView::makeRemainsPool(const Group& group) {
    return RowPool<RemainsRow>([this, &group] {
        auto* row = new RemainsRow;
        connect(row, &RemainsRow::toggled, this, [this](const Remains& remains) { toggle(remains.key()); });
        connect(row, &RemainsRow::endRequested, m_actions,
                [this](const Remains& remains) { m_actions->confirmEnd(remains); });
        connect(row->header(), &RowHeader::stepRequested, this,
                [this, row](int rows) { step(row->header(), rows); });
        group.rows->addWidget(row);
        return row;
    });
}

QWidget* SessionsView::makePage() {
    const QMargins margins(Theme::pagePadding, Theme::gridSpacing, Theme::pagePadding - Theme::scrollBarRoom,
                           Theme::pagePadding);
    auto* page = makeScrollingPage(m_area, margins, Theme::pageSpacing);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_results = new QVBoxLayout;
    m_results->setSpacing(Theme::rowSpacing);
    page->addLayout(m_results);
    m_sessions = addGroup(page, QString());
    m_leftOvers = addGroup(page, tr("Left-overs"));
    m_duplicates = addGroup(page, tr("Duplicates"));
    page->addStretch();
    return m_area;
}

SessionsView::Group SessionsView::addGroup(QVBoxLayout* page, const QString& title) {
    Group group{.widget = new QWidget, .rows = nullptr};
    auto* column = new QVBoxLayout(group.widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::rowSpacing);
    if (!title.isEmpty()) {
        auto* heading = new TextLabel(Theme::TextStyle::title3, QFont::Bold);
        heading->setPlainText(title);
        column->addWidget(heading);
    }
    auto* card = new Card;
    group.rows = new QVBoxLayout(card);
    group.rows->setContentsMargins(0, 0, 0, 0);
    group.rows->setSpacing(0);
    column->addWidget(card);
    page->addWidget(group.widget);
    return group;
}

/// Returns the page that takes the place of the list.
QWidget* SessionsView::makeEmptyPage(EmptyState* state) {
    auto* page = new QWidget;
    state->setFixedWidth(emptyTextWidth);
    auto* column = new QVBoxLayout(page);
    column->addStretch(2);
    column->addWidget(state, 0, Qt::AlignHCenter);
    column->addStretch(3);
    return page;
}

void SessionsView::refresh() {
    m_model.wantSessions();
    const SessionReport& report = m_model.sessionReport();
    QList<qint32> pids;
    for (const Session& session : report.sessions)
        pids += session.pids();
    m_model.memoryLedger().wantOnShow(pids);
    show(report);
}

void SessionsView::show(const SessionReport& report) {
    m_report = report;
    showReport();
}

void SessionsView::showReport() {
    const QString total = SessionTexts::summary(m_report);
    m_controls->setTotal(total.isEmpty() ? tr("No sessions") : total);
    const SessionQuery query = m_controls->query();
    QList<Session> sessions;
    for (const Session& session : m_order.sorted(m_report.sessions, m_controls->sort())) {
        if (query.matches(session))
            sessions.append(session);
    }
    const auto matching = [&query](const auto& all) {
        QList<Remains> result;
        for (const auto& each : all) {
            if (query.matches(Remains{each}))
                result.append(Remains{each});
        }
        return result;
    };
    const QList<Remains> leftOvers = matching(m_report.leftOvers);
    const QList<Remains> duplicates = matching(m_report.duplicates);
    showSessions(sessions);
    showRemains(m_leftOvers, m_leftOverRows, leftOvers);
    showRemains(m_duplicates, m_duplicateRows, duplicates);
    const bool isEmpty =
        m_report.sessions.isEmpty() && m_report.leftOvers.isEmpty() && m_report.duplicates.isEmpty();
    orderTabs();
    m_controls->setVisible(!isEmpty);
    const bool hasRows = !sessions.isEmpty() || !leftOvers.isEmpty() || !duplicates.isEmpty();
    m_stack->setCurrentIndex(hasRows || m_results->count() > 0 ? list : isEmpty ? nothing : noMatch);
}

void SessionsView::showSessions(const QList<Session>& sessions) {
    const FocusKeeper focus(*this);
    quint64 largest = 0;
    for (const Session& session : std::as_const(m_report.sessions))
        largest = std::max(largest, session.memory.bytes);
    m_sessionRows.show(sessions.size(), [&](SessionRow& row, qsizetype i) {
        const QString key = keyOf(sessions[i].host);
        row.set(sessions[i], {.now = m_model.systemSample().timestamp,
                              .largestBytes = largest,
                              .isFirst = i == 0,
                              .isExpanded = m_expanded.contains(key),
                              .isEnding = m_actions->isEnding(key)});
    });
    m_sessions.widget->setVisible(!sessions.isEmpty());
    focus.restore(*this);
}

void SessionsView::showRemains(const Group& group, RowPool<RemainsRow>& pool, const QList<Remains>& remains) {
    pool.show(remains.size(), [&](RemainsRow& row, qsizetype i) {
        const QString key = remains[i].key();
        row.set(remains[i], {.now = m_model.systemSample().timestamp,
                             .isFirst = i == 0,
                             .isExpanded = m_expanded.contains(key),
                             .isEnding = m_actions->isEnding(key)});
    });
    group.widget->setVisible(!remains.isEmpty());
}

/// Lets Tab go through the rows from top to bottom: a row that is made later would be last.
void SessionsView::orderTabs() {
    QList<QAbstractButton*> buttons;
    for (const Group& group : {m_sessions, m_leftOvers, m_duplicates})
        buttons += group.widget->findChildren<QAbstractButton*>();
    if (buttons.size() == m_tabStops)
        return;
    m_tabStops = buttons.size();
    for (qsizetype i = 1; i < buttons.size(); ++i)
        setTabOrder(buttons[i - 1], buttons[i]);
}

void SessionsView::toggle(const QString& key) {
    if (!m_expanded.remove(key))
        m_expanded.insert(key);
    showReport();
}

/// Moves the focus from one row to another, over the groups.
void SessionsView::step(const QWidget* from, int rows) {
    QList<RowHeader*> headers;
    for (RowHeader* header : findChildren<RowHeader*>()) {
        if (header->isVisibleTo(this))
            headers.append(header);
    }
    const auto top = [this](const RowHeader* header) { return header->mapTo(this, QPoint()).y(); };
    std::ranges::sort(headers, {}, top);
    const qsizetype next =
        headers.indexOf(static_cast<const RowHeader*>(from)) + static_cast<qsizetype>(rows);
    if (next < 0 || next >= headers.size())
        return;
    headers[next]->setFocus();
    m_area->ensureWidgetVisible(headers[next], 0, Theme::pagePadding);
}

void SessionsView::confirmEnd(const ProcessIdentity& host) {
    m_model.wantSessions();
    const QList<Session>& sessions = m_model.sessionReport().sessions;
    const auto found = std::ranges::find(sessions, host, &Session::host);
    if (found != sessions.end())
        m_actions->act(SessionAction::end, *found);
}

void SessionsView::addResult(const SessionEndResult& result) {
    auto* view = new SessionResultView(result);
    connect(view, &SessionResultView::dismissed, this, [this, view] {
        m_results->removeWidget(view);
        view->hide();
        view->deleteLater();
        showReport();
    });
    m_results->insertWidget(0, view);
    showReport();
    m_area->ensureWidgetVisible(view);
}
