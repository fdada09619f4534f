#pragma once

#include "Platform/Desktop/FloatingPanel.h"

#include <QWidget>

/// A tool window kept above by the window manager. Translucent where a compositor runs. On Wayland the
/// compositor alone places it, and may not keep it above.
class FreedesktopFloatingPanel : public QWidget, public FloatingPanel {
    Q_OBJECT

public:
    FreedesktopFloatingPanel();

    void setContent(QWidget* content) override;
    void placeBottomLeft(QPoint corner) override;
    void orderFront() override;
    void orderOut() override;
    bool isVisible() const override { return QWidget::isVisible(); }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    QPoint m_grip; ///< where the pointer holds the panel, from its top left corner
    QPoint m_place;
    bool m_placed = false;
};
