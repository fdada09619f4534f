#pragma once

#include "Platform/Desktop/StatusItem.h"

#include <QPointer>
#include <QWidget>

/// Stands in for a tray where the desktop has none: a small window at the top right, above all others,
/// that shows the title itself. On Wayland the compositor places it, and it is dragged like the panel.
class StatusPill : public QWidget {
    Q_OBJECT

public:
    StatusPill();

    void setContent(const StatusContent& content);
    void setMenu(QMenu* menu);

Q_SIGNALS:
    void clicked();

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void fit();

    StatusContent m_content;
    QPointer<QMenu> m_menu;
    QPoint m_grip; ///< where the pointer was pressed
};
