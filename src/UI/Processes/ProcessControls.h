#pragma once

#include "UI/Processes/ProcessQuery.h"

#include <QWidget>

class LabeledSlider;
class PopUpButton;
class QCheckBox;
class QMenu;
class SearchField;

/// The controls of the table: search, group, sort, minimum size, and the grouping by name.
class ProcessControls : public QWidget {
    Q_OBJECT

public:
    explicit ProcessControls(QWidget* parent = nullptr);

    ProcessQuery query() const;
    bool groupsDuplicates() const;
    void setSort(const QString& column);
    void focusSearch();

Q_SIGNALS:
    void changed();
    /// Emitted before the menu of the columns is shown, so that it can be filled.
    void columnsMenuOpens(QMenu& menu);

private:
    QWidget* makeColumnsButton();

    SearchField* m_search;
    PopUpButton* m_group;
    PopUpButton* m_sort;
    LabeledSlider* m_minRSS;
    QCheckBox* m_fold;
};
