#pragma once

#include "Core/Cleanup/ProjectLeftovers.h"
#include "UI/Kit/RowPool.h"

#include <QDialog>
#include <QSet>

class AppModel;
class ClampedLabel;
class EmptyState;
class LeftoverRow;
class Preferences;
class PushButton;
class QScrollArea;
class QStackedWidget;
class QVBoxLayout;
class SearchField;
class Spinner;
class TextLabel;

/// What builds have left in the user's projects, the largest first, to tick and remove after a question. It
/// searches when it is opened for the first time. Modal for its window; deletes itself when it is closed.
class ProjectLeftoversSheet : public QDialog {
    Q_OBJECT

public:
    ProjectLeftoversSheet(AppModel& model, Preferences& preferences, QWidget* parent);

private:
    QLayout* makeHeader();
    QLayout* makeSources();
    QLayout* makeHeads();
    QWidget* makeList();
    QLayout* makeFoot();
    void refresh();
    void refreshRows();
    void refreshFoot();
    void search();
    void chooseFolder();
    void setFolders(const QStringList& folders);
    void toggle(const QByteArray& project);
    void askForChanges();
    void confirm();
    QList<LeftoverProject> shown() const;
    QList<LeftoverProject> chosen() const;

    AppModel& m_model;
    ProjectLeftovers& m_leftovers;
    Preferences& m_preferences;
    QSet<QByteArray> m_ticked; ///< paths of projects
    QSet<QByteArray> m_asked;  ///< paths of projects whose changes were asked for
    bool m_isAsking = false;

    ClampedLabel* m_sources;
    PushButton* m_addFolder;
    PushButton* m_home;
    SearchField* m_search;
    PushButton* m_rescan;
    QScrollArea* m_area;
    QStackedWidget* m_stack;
    QVBoxLayout* m_rowsLayout = nullptr;
    EmptyState* m_failed = nullptr; ///< in place of the list
    RowPool<LeftoverRow> m_rows;
    TextLabel* m_more;
    Spinner* m_spinner;
    ClampedLabel* m_progress;
    TextLabel* m_outcome;
    ClampedLabel* m_unfinished;
    PushButton* m_stop;
    PushButton* m_remove;
};
