#pragma once

#include "UI/Processes/ProcessRowDelegate.h"

class AppModel;
struct NukePreview;
class QMenu;

/// The menu of a row of the Processes section, flat or grouped: the actions of its buttons, quitting its
/// application, and the group of its programs.
class ProcessMenu : public QObject {
    Q_OBJECT

public:
    explicit ProcessMenu(AppModel& model, QObject* parent = nullptr);

    /// Adds the entries. They mean this row, wherever it moves while the menu is open.
    void fill(QMenu& menu, const ProcessTableRow& row, bool isGrouped);

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    /// Emitted when the user wants to quit the application that owns all processes of the preview.
    void quitRequested(const NukePreview& preview);

private:
    void addButtons(QMenu& menu, const ProcessTableRow& row, bool isGrouped);
    void addApplication(QMenu& menu, const ProcessTableRow& row);
    void addGroups(QMenu& menu, const ProcessTableRow& row);

    AppModel& m_model;
};
