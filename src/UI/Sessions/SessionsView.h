#pragma once

#include "UI/Kit/RowPool.h"
#include "UI/Sessions/RemainsRow.h"
#include "UI/Sessions/SessionQuery.h"
#include "UI/Sessions/SessionRow.h"

#include <QSet>
#include <QWidget>

class AppModel;
class EmptyState;
class Notice;
class Preferences;
class QScrollArea;
class QStackedWidget;
class QVBoxLayout;
class SessionActions;
class SessionControls;
struct SessionEndResult;

/// The fifth section of the main window: the running coding agents, each with what it started, and what
/// ended ones left running.
class SessionsView : public QWidget {
    Q_OBJECT

public:
    SessionsView(AppModel& model, Preferences& preferences, QWidget* parent = nullptr);

    using QWidget::show;
    /// Shows these sessions, as the search and the order have them.
    void show(const SessionReport& report);
    /// Puts the result of an end above the sessions until it is dismissed.
    void addResult(const SessionEndResult& result);
    /// Asks whether to end the session of that host, if it runs.
    void confirmEnd(const ProcessIdentity& host);

private:
    /// A title above a card of rows.
    struct Group {
        QWidget* widget;
        QVBoxLayout* rows;
    };

    Group addGroup(QVBoxLayout* page, const QString& title);
    RowPool<RemainsRow> makeRemainsPool(const Group& group);
    QWidget* makePage();
    QWidget* makeEmptyPage(EmptyState* state);
    void refresh();
    void showReport();
    void showSessions(const QList<Session>& sessions);
    void showRemains(const Group& group, RowPool<RemainsRow>& pool, const QList<Remains>& remains);
    void orderTabs();
    void toggle(const QString& key);
    void step(const QWidget* from, int rows);

    AppModel& m_model;
    SessionActions* m_actions;
    SessionControls* m_controls;
    Notice* m_notice;
    QStackedWidget* m_stack;
    QScrollArea* m_area;
    QVBoxLayout* m_results = nullptr;
    SessionReport m_report;
    SessionOrder m_order;
    QSet<QString> m_expanded; ///< keys of the open rows
    qsizetype m_tabStops = 0; ///< buttons whose tab order is set
    Group m_sessions{};
    Group m_leftOvers{};
    Group m_duplicates{};
    RowPool<SessionRow> m_sessionRows;
    RowPool<RemainsRow> m_leftOverRows;
    RowPool<RemainsRow> m_duplicateRows;
};
