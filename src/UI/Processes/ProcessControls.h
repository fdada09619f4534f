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
    /// Sorts by a column, the other way round when it is sorted by already.
    void sortBy(const QString& column);
    void focusSearch();
    void clearSearch();
    void clearGroup();
    void clearMinRAM();

Q_SIGNALS:
    void changed();
    /// Emitted before the menu of the columns is shown, so that it can be filled.
    void columnsMenuOpens(QMenu& menu);
    void detailsToggled();

private:
    void chooseSort(const QString& column);
    void setListing(ProcessListing listing);
    QWidget* makeColumnsButton();

    SearchField* m_search;
    PopUpButton* m_group;
    PopUpButton* m_sort;
    LabeledSlider* m_minRSS;
    QCheckBox* m_fold;
    QCheckBox* m_tree;
    QString m_sortBy = ProcessQuery().sortBy;
    bool m_isTurned = false;
    bool m_isPicking = false; ///< the picker follows a head
};
