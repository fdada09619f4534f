#pragma once

#include "Core/Relief/FreeRAM.h"

#include <QAbstractButton>

/// One process that can be ticked to be ended. A click anywhere means the process that was shown when the
/// mouse button was pressed.
class CandidateRow : public QAbstractButton {
    Q_OBJECT

public:
    explicit CandidateRow(QWidget* parent = nullptr);

    void set(const FreeRamPreview& candidate, bool isTicked);

    QSize sizeHint() const override;

Q_SIGNALS:
    void ticked(qint32 pid);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    FreeRamPreview m_candidate;
};
