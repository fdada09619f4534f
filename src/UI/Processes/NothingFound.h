#pragma once

#include "UI/Processes/ProcessQuery.h"

#include <QWidget>

class PushButton;
class TextLabel;

/// Takes the place of a table without rows. It says how many processes each filter hides, and lifts it.
class NothingFound : public QWidget {
    Q_OBJECT

public:
    explicit NothingFound(QWidget* parent = nullptr);

    void set(const ProcessQuery& query, const ProcessQuery::Hidden& hidden);
    /// Says why there are no processes at all.
    void setNoProcesses(const QString& reason);

Q_SIGNALS:
    void searchLifted();
    void groupLifted();
    void sizeLifted();

private:
    TextLabel* m_title;
    TextLabel* m_detail;
    PushButton* m_search;
    PushButton* m_group;
    PushButton* m_size;
    PushButton* m_all;
};
