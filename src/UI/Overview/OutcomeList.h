#pragma once

#include "Core/Relief/FreeRAM.h"

#include <QScrollArea>

#include <optional>

class QVBoxLayout;

/// How each of several processes ended. When they are many it scrolls, and takes the keyboard for that.
class OutcomeList : public QScrollArea {
    Q_OBJECT

public:
    struct Line {
        qint32 pid = 0;
        QString name;
        std::optional<KillOutcome> outcome; ///< empty for a process that belonged to something else
        bool wasSpared = false;             ///< not killed, since the person stopped the run
    };

    explicit OutcomeList(QWidget* parent = nullptr);

    /// Shows the lines, and hides the list when there are none.
    void set(const QList<Line>& lines);

protected:
    bool event(QEvent* event) override;

private:
    QVBoxLayout* m_column;
    QList<QWidget*> m_rows;
};
