#pragma once

#include "UI/Processes/ProcessRowDelegate.h"

class AppModel;
struct NukePreview;
class QMenu;

/// The menu of a row of the Processes section, flat or grouped: what its buttons do, what can be done with
/// the application behind it, and the group that its programs are shown in.
class ProcessMenu : public QObject {
    Q_OBJECT

public:
    explicit ProcessMenu(AppModel& model, QObject* parent = nullptr);

    /// Adds all of it to `menu`. The entries mean this row, wherever it goes while the menu is open.
    void fill(QMenu& menu, const ProcessTableRow& row, bool isGrouped);

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    /// The user wants to quit the application that owns all processes of the preview.
    void quitRequested(const NukePreview& preview);

private:
    void addButtons(QMenu& menu, const ProcessTableRow& row, bool isGrouped);
    void addApplication(QMenu& menu, const ProcessTableRow& row);
    void addGroups(QMenu& menu, const ProcessTableRow& row);

    AppModel& m_model;
};
