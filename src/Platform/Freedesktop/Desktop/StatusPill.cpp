#include "Platform/Freedesktop/Desktop/StatusPill.h"

#include "Platform/Freedesktop/Desktop/WaylandWindow.h"
#include "Platform/Freedesktop/Desktop/WindowShape.h"
#include "Platform/Freedesktop/Desktop/X11Window.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int smallestHeight = 26;
constexpr int padding = 12;
constexpr int symbolSize = 16;
constexpr int markSize = 12;
constexpr int markGap = 6;
constexpr int topMargin = 4;
constexpr int windowButtons = 160; ///< at the right of a maximized window

} // namespace

StatusPill::StatusPill()
    : QWidget(nullptr,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_TranslucentBackground, X11Window::isComposited());
    setCursor(Qt::PointingHandCursor);
}

void StatusPill::setContent(const StatusContent& content) {
    m_content = content;
    setToolTip(content.toolTip);
    setAccessibleName(content.toolTip);
    fit();
    update();
}

void StatusPill::setMenu(QMenu* menu) {
    m_menu = menu;
}

void StatusPill::showEvent(QShowEvent* event) {
    X11Window::setOnAllDesktops(this);
    // Once it is mapped: the window manager takes no requests for other windows.
    QMetaObject::invokeMethod(
        this, [this] { X11Window::keepOffTaskbar(this); }, Qt::QueuedConnection);
    fit();
    QWidget::showEvent(event);
}

void StatusPill::resizeEvent(QResizeEvent*) {
    cutCorners(*this, height() / 2.0);
}

int StatusPill::markRoom() const {
    return m_content.mark.isNull() ? 0 : markSize + markGap;
}

/// Keeps the right edge in place: wider figures grow to the left.
void StatusPill::fit() {
    const int content =
        m_content.title.isEmpty() ? symbolSize : fontMetrics().horizontalAdvance(m_content.title);
    const int pillHeight = std::max(smallestHeight, fontMetrics().height() + 8);
    const QSize wanted(content + markRoom() + 2 * padding, pillHeight);
    if (WaylandWindow::isWayland()) {
        setFixedSize(wanted); // tiling compositors let windows of fixed size float
        return;
    }
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint topRight =
        m_topRight.value_or(QPoint(room.right() + 1 - windowButtons, room.top() + topMargin));
    setGeometry(QRect(topRight - QPoint(wanted.width(), 0), wanted));
}

void StatusPill::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.2F);
    painter.setPen(edge);
    painter.setBrush(palette().color(QPalette::Window));
    const double radius = height() / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.setPen(palette().color(QPalette::WindowText));
    const auto visual = [this](const QRect& area) {
        return QStyle::visualRect(layoutDirection(), rect(), area);
    };
    const QRect room = visual(rect().adjusted(padding + markRoom(), 0, -padding, 0));
    if (!m_content.mark.isNull())
        m_content.mark.paint(&painter, visual(QRect(padding, (height() - markSize) / 2, markSize, markSize)));
    if (m_content.title.isEmpty())
        m_content.symbol.paint(&painter, room);
    else
        painter.drawText(room, Qt::AlignCenter, m_content.title);
}

void StatusPill::mousePressEvent(QMouseEvent* event) {
    m_grip = event->position().toPoint();
    m_isDragged = false;
    if (event->button() != Qt::RightButton || !m_menu)
        return;
    // By default its parent is the window with the keyboard, where Wayland would show it.
    m_menu->winId();
    m_menu->windowHandle()->setTransientParent(windowHandle());
    m_menu->popup(event->globalPosition().toPoint());
}

void StatusPill::mouseMoveEvent(QMouseEvent* event) {
    const int distance = (event->position().toPoint() - m_grip).manhattanLength();
    if (!(event->buttons() & Qt::LeftButton))
        return;
    m_isDragged = m_isDragged || distance >= QApplication::startDragDistance();
    if (!m_isDragged)
        return;
    if (WaylandWindow::isWayland()) {
        windowHandle()->startSystemMove();
        return;
    }
    move(event->globalPosition().toPoint() - m_grip);
    m_topRight = pos() + QPoint(width(), 0);
}

void StatusPill::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_isDragged && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}
