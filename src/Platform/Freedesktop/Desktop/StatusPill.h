#pragma once

#include "Platform/Desktop/StatusItem.h"

#include <QPointer>
#include <QWidget>

/// A small window for desktops without a tray, at the top right above all others, with the title in it. On
/// Wayland the compositor places it and it can be dragged.
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
    int markRoom() const;

    StatusContent m_content;
    QPointer<QMenu> m_menu;
    QPoint m_grip; ///< where the pointer was pressed
};
