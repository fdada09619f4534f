#pragma once

#include "UI/Processes/ProcessRowDelegate.h"

#include <QWidget>

class AppModel;
struct NukePreview;
class Notice;
class Preferences;
class ProcessControls;
class ProcessMenu;
class ProcessTableView;
class QStackedWidget;

/// The third section of the main window: every process, with search, sorting and grouping by name.
class ProcessesView : public QWidget {
    Q_OBJECT

public:
    ProcessesView(AppModel& model, Preferences& preferences, QWidget* parent = nullptr);

private:
    void refresh();
    void showQuery();
    QList<ProcessTableRow> rows() const;
    void act(RowAction action, const ProcessTableRow& row);
    void confirmSweep(const NukePreview& preview);
    void quitApplication(const NukePreview& preview, bool force);

    AppModel& m_model;
    ProcessControls* m_controls;
    Notice* m_notice;
    QStackedWidget* m_stack;
    ProcessTableView* m_table;
    ProcessMenu* m_menu;
};
