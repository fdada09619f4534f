#include "Platform/Freedesktop/Desktop/StatusPill.h"

#include "Platform/Freedesktop/Desktop/WaylandWindow.h"
#include "Platform/Freedesktop/Desktop/X11Window.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

namespace {

constexpr int pillHeight = 26;
constexpr int padding = 12;
constexpr int symbolSize = 16;
constexpr int markSize = 12;
constexpr int markGap = 6;
constexpr int screenMargin = 8;

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
    fit();
    QWidget::showEvent(event);
}

int StatusPill::markRoom() const {
    return m_content.mark.isNull() ? 0 : markSize + markGap;
}

/// Keeps the right edge in place: wider figures grow to the left.
void StatusPill::fit() {
    const int content =
        m_content.title.isEmpty() ? symbolSize : fontMetrics().horizontalAdvance(m_content.title);
    const QSize wanted(content + markRoom() + 2 * padding, pillHeight);
    if (WaylandWindow::isWayland()) {
        setFixedSize(wanted); // tiling compositors let windows of fixed size float
        return;
    }
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    setGeometry(
        QRect(QPoint(room.right() + 1 - screenMargin - wanted.width(), room.top() + screenMargin), wanted));
}

void StatusPill::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.2F);
    painter.setPen(edge);
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), pillHeight / 2.0,
                            pillHeight / 2.0);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect room = rect().adjusted(padding + markRoom(), 0, -padding, 0);
    if (!m_content.mark.isNull())
        m_content.mark.paint(&painter, QRect(padding, (height() - markSize) / 2, markSize, markSize));
    if (m_content.title.isEmpty())
        m_content.symbol.paint(&painter, room);
    else
        painter.drawText(room, Qt::AlignCenter, m_content.title);
}

void StatusPill::mousePressEvent(QMouseEvent* event) {
    m_grip = event->position().toPoint();
    if (event->button() != Qt::RightButton || !m_menu)
        return;
    // By default its parent is the window with the keyboard, where Wayland would show it.
    m_menu->winId();
    m_menu->windowHandle()->setTransientParent(windowHandle());
    m_menu->popup(event->globalPosition().toPoint());
}

void StatusPill::mouseMoveEvent(QMouseEvent* event) {
    const int distance = (event->position().toPoint() - m_grip).manhattanLength();
    const bool isDrag = event->buttons() & Qt::LeftButton && distance >= QApplication::startDragDistance();
    if (isDrag && WaylandWindow::isWayland())
        windowHandle()->startSystemMove();
}

void StatusPill::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}
