#pragma once

#include "UI/Processes/ProcessTableModel.h"

#include <QWidget>

#include <chrono>

class AppModel;
class Card;
class InspectorPanel;
struct NukePreview;
class Notice;
class NothingFound;
class Preferences;
class ProcessControls;
class ProcessMenu;
class ProcessTableView;
class QStackedWidget;
class TextLabel;

/// The third section of the main window: every process, with search, sorting, grouping by name and the tree.
class ProcessesView : public QWidget {
    Q_OBJECT

public:
    ProcessesView(AppModel& model, Preferences& preferences, QWidget* parent = nullptr);

private:
    void layOut();
    void connectInspector();
    void showInspector(bool isShown);
    void inspectCurrent();
    void connectParts();
    void refresh();
    void showQuery();
    void prepareFacts(const ProcessQuery& query);
    QList<ProcessTableRow> rows(const ProcessQuery& query, bool isHeld);
    void showCounts(const ProcessQuery& query, qsizetype shown);
    void markLeaving(QList<ProcessTableRow>& rows);
    void toggleFold(const ProcessTableRow& row);
    void act(RowAction action, const ProcessTableRow& row);
    void endRows(const QList<ProcessTableRow>& rows, bool force);
    void askToEnd(const QList<ProcSample>& processes, bool force);
    void end(const QList<ProcSample>& processes, bool force);
    void confirmSweep(const NukePreview& preview);
    void quitApplication(const NukePreview& preview, bool force);

    AppModel& m_model;
    Preferences& m_preferences;
    ProcessControls* m_controls;
    Notice* m_notice;
    QStackedWidget* m_stack;
    ProcessTableView* m_table;
    NothingFound* m_nothing;
    TextLabel* m_counts;
    Card* m_inspectorCard;
    InspectorPanel* m_inspector;
    ProcessMenu* m_menu;
    ColumnFacts m_facts;
    QSet<ProcessRowKey> m_folded;
    /// When processes were asked to end that have not ended yet.
    QHash<ProcessRowKey, std::chrono::steady_clock::time_point> m_leaving;
};
