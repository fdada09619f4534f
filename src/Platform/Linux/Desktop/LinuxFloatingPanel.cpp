#include "Platform/Linux/Desktop/LinuxFloatingPanel.h"

#include "Platform/Linux/Desktop/X11Window.h"

#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWindow>

LinuxFloatingPanel::LinuxFloatingPanel()
    : QWidget(nullptr,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_TranslucentBackground, X11Window::isComposited());
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->setSizeConstraint(QLayout::SetFixedSize);
}

void LinuxFloatingPanel::setContent(QWidget* content) {
    layout()->addWidget(content);
}

void LinuxFloatingPanel::placeBottomLeft(QPoint corner) {
    layout()->activate();
    m_place = corner - QPoint(0, sizeHint().height());
    m_placed = true;
    move(m_place);
}

void LinuxFloatingPanel::orderFront() {
    X11Window::setOnAllDesktops(this);
    if (m_placed)
        move(m_place);
    show();
    X11Window::setOnAllDesktops(this);
    raise();
}

void LinuxFloatingPanel::orderOut() {
    hide();
}

void LinuxFloatingPanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_grip = event->position().toPoint();
    if (!X11Window::isX11())
        windowHandle()->startSystemMove();
}

void LinuxFloatingPanel::mouseMoveEvent(QMouseEvent* event) {
    if (X11Window::isX11() && event->buttons() & Qt::LeftButton)
        move(event->globalPosition().toPoint() - m_grip);
}

void LinuxFloatingPanel::moveEvent(QMoveEvent*) {
    if (QWidget::isVisible() && m_placed)
        m_place = pos();
}
