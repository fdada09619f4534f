#pragma once

#include "Platform/Desktop/FloatingPanel.h"

#include <QWidget>

/// A tool window that the window manager keeps above, translucent under a compositor. On Wayland the
/// compositor places it and may not keep it above.
class FreedesktopFloatingPanel : public QWidget, public FloatingPanel {
    Q_OBJECT

public:
    FreedesktopFloatingPanel();

    void setContent(QWidget* content, double cornerRadius) override;
    void placeBottomLeft(QPoint corner) override;
    QPoint bottomLeft() const override { return m_place + QPoint(0, height()); }
    void orderFront() override;
    void orderOut() override;
    bool isVisible() const override { return QWidget::isVisible(); }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPoint m_grip; ///< where the pointer was pressed
    QPoint m_place;
    bool m_placed = false;
    double m_cornerRadius = 0;
};
