#include "Platform/Freedesktop/Desktop/FreedesktopFloatingPanel.h"

#include "Platform/Freedesktop/Desktop/WindowShape.h"
#include "Platform/Freedesktop/Desktop/X11Window.h"

#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWindow>

FreedesktopFloatingPanel::FreedesktopFloatingPanel()
    : QWidget(nullptr,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_TranslucentBackground, X11Window::isComposited());
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->setSizeConstraint(QLayout::SetFixedSize);
}

void FreedesktopFloatingPanel::setContent(QWidget* content, double cornerRadius) {
    m_cornerRadius = cornerRadius;
    layout()->addWidget(content);
}

void FreedesktopFloatingPanel::placeBottomLeft(QPoint corner) {
    layout()->activate();
    m_place = corner - QPoint(0, sizeHint().height());
    m_placed = true;
    move(m_place);
}

void FreedesktopFloatingPanel::orderFront() {
    X11Window::setOnAllDesktops(this);
    X11Window::keepOffTaskbar(this);
    if (m_placed)
        move(m_place);
    show();
    X11Window::setOnAllDesktops(this);
    X11Window::keepOffTaskbar(this);
    raise();
}

void FreedesktopFloatingPanel::orderOut() {
    hide();
}

void FreedesktopFloatingPanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_grip = event->position().toPoint();
    if (!X11Window::isX11())
        windowHandle()->startSystemMove();
}

void FreedesktopFloatingPanel::mouseMoveEvent(QMouseEvent* event) {
    if (X11Window::isX11() && event->buttons() & Qt::LeftButton)
        move(event->globalPosition().toPoint() - m_grip);
}

void FreedesktopFloatingPanel::resizeEvent(QResizeEvent*) {
    cutCorners(*this, m_cornerRadius);
}

void FreedesktopFloatingPanel::moveEvent(QMoveEvent*) {
    if (QWidget::isVisible() && m_placed)
        m_place = pos();
}
