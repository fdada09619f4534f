#pragma once

#include "UI/Processes/ProcessQuery.h"

#include <QWidget>

class LabeledSlider;
class PopUpButton;
class QCheckBox;
class SearchField;

/// What narrows and orders the table: search, group, sort, size, and the fold of duplicates.
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

private:
    SearchField* m_search;
    PopUpButton* m_group;
    PopUpButton* m_sort;
    LabeledSlider* m_minRSS;
    QCheckBox* m_fold;
};
