#pragma once

#include <QScrollBar>

class QAbstractScrollArea;

/// A vertical scroll bar without arrows. It keeps its room when there is nothing to scroll, so that a page
/// does not move sideways when its content grows.
class SlimScrollBar : public QScrollBar {
    Q_OBJECT

public:
    /// Gives the area such a bar, and no horizontal one.
    static void install(QAbstractScrollArea* area);

    QSize sizeHint() const override;

protected:
    explicit SlimScrollBar(QWidget* parent);
    void paintEvent(QPaintEvent* event) override;
};
