#include "Platform/Freedesktop/Desktop/FreedesktopPopover.h"

#include "Platform/Freedesktop/Desktop/WaylandWindow.h"
#include "Platform/Freedesktop/Desktop/X11Window.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr int gap = 4;
constexpr int sameClickMs = 250;
/// Where the focus follows the pointer, other windows have it while the pointer is on its way here.
constexpr auto focusTimeout = 1s;

constexpr Qt::WindowFlags popUp = Qt::Popup | Qt::FramelessWindowHint;
constexpr Qt::WindowFlags smallWindow = Qt::Tool | Qt::FramelessWindowHint;

} // namespace

FreedesktopPopover::FreedesktopPopover(QObject* parent)
    : Popover(parent) {
    m_focusTimer.setSingleShot(true);
    connect(&m_focusTimer, &QTimer::timeout, this, &FreedesktopPopover::close);
}

FreedesktopPopover::~FreedesktopPopover() {
    delete m_window;
}

void FreedesktopPopover::setContent(QWidget* content, QSize size) {
    delete m_window;
    m_window = new QWidget(nullptr, popUp);
    m_window->setWindowTitle(QGuiApplication::applicationDisplayName());
    m_window->setAttribute(Qt::WA_QuitOnClose, false);
    m_size = size;
    m_window->installEventFilter(this);
    auto* frame = new QVBoxLayout(m_window);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(content);
}

void FreedesktopPopover::show(QRect anchor) {
    const bool besideTray = anchor.isEmpty() && WaylandWindow::isWayland();
    const bool cannotPopUp = besideTray || WaylandWindow::isXWayland();
    const Qt::WindowFlags flags = cannotPopUp ? smallWindow : popUp;
    if (m_window->windowFlags() != flags)
        m_window->setWindowFlags(flags);
    m_window->setFixedSize(m_size.expandedTo(m_window->layout()->minimumSize()));
    m_window->move(place(anchor));
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    if (cannotPopUp)
        X11Window::activate(m_window);
    m_window->setFocus(); // so that no control of the content has the focus before Tab is pressed
}

void FreedesktopPopover::close() {
    m_window->hide();
}

bool FreedesktopPopover::isShown() const {
    return m_window->isVisible() || (m_sinceClosed.isValid() && m_sinceClosed.elapsed() < sameClickMs);
}

bool FreedesktopPopover::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_window)
        filterOwnWindow(event);
    return Popover::eventFilter(watched, event);
}

/// Closes the small window as the window system and Qt close a pop-up.
void FreedesktopPopover::filterOwnWindow(QEvent* event) {
    const bool isPopUp = m_window->windowType() == Qt::Popup;
    switch (event->type()) {
    case QEvent::Hide:
        m_sinceClosed.start();
        m_focusTimer.stop();
        break;
    case QEvent::WindowActivate:
        m_focusTimer.stop();
        break;
    case QEvent::WindowDeactivate:
        if (!isPopUp)
            m_focusTimer.start(focusTimeout);
        break;
    case QEvent::KeyPress:
        if (!isPopUp && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel))
            close();
        break;
    default:
        break;
    }
}

/// Places the window below the anchor or, without room, above it, within the anchor's screen. Only a Wayland
/// compositor knows the bounds there.
QPoint FreedesktopPopover::place(QRect anchor) const {
    if (anchor.isEmpty())
        anchor = QRect(QCursor::pos(), QSize(1, 1));
    const QSize size = m_window->size();
    const QPoint below(anchor.center().x() - size.width() / 2, anchor.bottom() + 1 + gap);
    if (WaylandWindow::isWayland())
        return below;
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const bool fits = below.y() + size.height() <= room.bottom();
    const int y = fits ? below.y() : anchor.top() - gap - size.height();
    return {std::clamp(below.x(), room.left() + gap,
                       std::max(room.left() + gap, room.right() - size.width() - gap)),
            std::clamp(y, room.top(), std::max(room.top(), room.bottom() - size.height()))};
}
