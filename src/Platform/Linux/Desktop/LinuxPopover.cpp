#include "Platform/Linux/Desktop/LinuxPopover.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int gap = 4;
constexpr int sameClickMs = 250;

} // namespace

LinuxPopover::~LinuxPopover() {
    delete m_window;
}

void LinuxPopover::setContent(QWidget* content, QSize size) {
    delete m_window;
    m_window = new QWidget(nullptr, Qt::Popup | Qt::FramelessWindowHint);
    m_window->setWindowTitle(QGuiApplication::applicationDisplayName());
    m_window->setAttribute(Qt::WA_QuitOnClose, false);
    m_window->setFixedSize(size);
    m_window->installEventFilter(this);
    auto* frame = new QVBoxLayout(m_window);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(content);
}

void LinuxPopover::show(QRect anchor) {
    m_window->move(place(anchor));
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    m_window->setFocus(); // no control of the content looks chosen before Tab picks one
}

void LinuxPopover::close() {
    m_window->hide();
}

bool LinuxPopover::isShown() const {
    return m_window->isVisible() || (m_sinceClosed.isValid() && m_sinceClosed.elapsed() < sameClickMs);
}

bool LinuxPopover::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_window && event->type() == QEvent::Hide)
        m_sinceClosed.start();
    return Popover::eventFilter(watched, event);
}

/// Below the anchor where there is room, else above it; always whole on the anchor's screen.
QPoint LinuxPopover::place(QRect anchor) const {
    if (anchor.isEmpty())
        anchor = QRect(QCursor::pos(), QSize(1, 1));
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QSize size = m_window->size();
    int y = anchor.bottom() + 1 + gap;
    if (y + size.height() > room.bottom())
        y = anchor.top() - gap - size.height();
    const int x = anchor.center().x() - size.width() / 2;
    return {std::clamp(x, room.left() + gap, std::max(room.left() + gap, room.right() - size.width() - gap)),
            std::clamp(y, room.top(), std::max(room.top(), room.bottom() - size.height()))};
}
