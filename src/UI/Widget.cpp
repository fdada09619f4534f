#include "UI/Widget.h"

#include "AppModel.h"
#include "Platform/Desktop/FloatingPanel.h"
#include "UI/MainWindowFinder.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr QPoint fromRightAndBottom(260, 40);

} // namespace

WidgetWindow::WidgetWindow(Desktop desktop)
    : m_desktop(std::move(desktop)) {}

WidgetWindow::~WidgetWindow() = default;

void WidgetWindow::show(AppModel& model) {
    if (!m_window) {
        m_window = m_desktop.makePanel();
        auto* view = new WidgetView(model);
        QObject::connect(view, &WidgetView::close, view, [this] { hide(); });
        QObject::connect(view, &WidgetView::openMain, view, [application = m_desktop.application] {
            MainWindowFinder::open(*application, MainWindowFinder::Fallback::nothing);
        });
        m_window->setContent(view, WidgetView::cornerRadius);
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect room = screen->availableGeometry();
            m_window->placeBottomLeft(
                {room.right() + 1 - fromRightAndBottom.x(), room.bottom() + 1 - fromRightAndBottom.y()});
        }
    }
    m_window->orderFront();
}

void WidgetWindow::hide() {
    if (m_window)
        m_window->orderOut();
}

void WidgetWindow::toggle(AppModel& model) {
    if (isVisible())
        hide();
    else
        show(model);
}

bool WidgetWindow::isVisible() const {
    return m_window && m_window->isVisible();
}
