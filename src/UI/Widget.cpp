#include "UI/Widget.h"

#include "AppModel.h"
#include "Core/SettingsFile.h"
#include "Platform/Desktop/FloatingPanel.h"
#include "UI/MainWindowFinder.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace {

constexpr QPoint fromRightAndBottom(260, 40);
constexpr QPoint insideTheCard(40, -40);
constexpr double farthest = 100'000; // of a stored place

QString leftKey() {
    return QStringLiteral("ui.widget.left");
}

QString bottomKey() {
    return QStringLiteral("ui.widget.bottom");
}

} // namespace

WidgetWindow::WidgetWindow(Desktop desktop, SettingsFile* places)
    : m_desktop(std::move(desktop))
    , m_places(places) {}

WidgetWindow::~WidgetWindow() {
    rememberPlace();
}

/// Returns where the panel stood when it was last hidden, unless that is on no screen any more.
QPoint WidgetWindow::firstPlace() const {
    const auto left = m_places ? m_places->number(leftKey()) : std::nullopt;
    const auto bottom = m_places ? m_places->number(bottomKey()) : std::nullopt;
    if (left && bottom && std::abs(*left) < farthest && std::abs(*bottom) < farthest) {
        const QPoint stored(qRound(*left), qRound(*bottom));
        if (QGuiApplication::screenAt(stored + insideTheCard))
            return stored;
    }
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    return {room.right() + 1 - fromRightAndBottom.x(), room.bottom() + 1 - fromRightAndBottom.y()};
}

void WidgetWindow::rememberPlace() {
    if (!m_window || !m_places)
        return;
    m_places->store(leftKey(), m_window->bottomLeft().x());
    m_places->store(bottomKey(), m_window->bottomLeft().y());
}

void WidgetWindow::show(AppModel& model) {
    if (!m_window) {
        m_window = m_desktop.makePanel();
        auto* view = new WidgetView(model);
        QObject::connect(view, &WidgetView::close, view, [this] { hide(); });
        QObject::connect(view, &WidgetView::openMain, view, [application = m_desktop.application] {
            MainWindowFinder::open(*application, MainWindowFinder::Fallback::nothing);
        });
        m_window->setContent(view, WidgetView::cornerRadius);
        if (QGuiApplication::primaryScreen())
            m_window->placeBottomLeft(firstPlace());
    }
    m_window->orderFront();
}

void WidgetWindow::hide() {
    rememberPlace();
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
