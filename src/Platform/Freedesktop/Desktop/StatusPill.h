#pragma once

#include "Platform/Desktop/StatusItem.h"

#include <QPointer>
#include <QWidget>

#include <optional>

/// A small window for desktops without a tray, above all others, with the title in it. It stands at the top
/// right, beside the buttons of a maximized window, and can be dragged. On Wayland the compositor places it.
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
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();
    int markRoom() const;

    StatusContent m_content;
    QPointer<QMenu> m_menu;
    QPoint m_grip; ///< where the pointer was pressed
    bool m_isDragged = false;
    std::optional<QPoint> m_topRight; ///< once it was dragged
};
