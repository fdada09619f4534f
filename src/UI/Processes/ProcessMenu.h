#pragma once

#include "UI/Processes/ProcessTableModel.h"

class AppModel;
struct NukePreview;
class QMenu;

/// The menu of a row of the Processes section: the actions of its buttons, in their place the ends that are
/// asked about where several rows are selected or the row is protected; details, quitting its application,
/// and the group of its programs.
class ProcessMenu : public QObject {
    Q_OBJECT

public:
    explicit ProcessMenu(AppModel& model, QObject* parent = nullptr);

    /// Adds the entries of `row`, of the table `rows`. `selected` are all selected rows, `row` among them.
    /// The entries mean these rows, wherever they move while the menu is open.
    void fill(QMenu& menu, const ProcessTableModel& rows, const ProcessTableRow& row,
              const QList<ProcessTableRow>& selected);

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    void endRequested(const QList<ProcessTableRow>& rows, bool force);
    void detailsRequested();
    /// Emitted when the user wants to quit the application that owns all processes of the preview.
    void quitRequested(const NukePreview& preview);

private:
    void addButtons(QMenu& menu, const ProcessTableModel& rows, const ProcessTableRow& row);
    void addEnds(QMenu& menu, const QList<ProcessTableRow>& rows);
    void addApplication(QMenu& menu, const ProcessTableRow& row);
    void addGroups(QMenu& menu, const ProcessTableRow& row);

    AppModel& m_model;
};
