#include "Platform/Freedesktop/Desktop/X11Window.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QWidget>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace X11Window {
namespace {

template <typename T> using Reply = std::unique_ptr<T, decltype(&std::free)>;

xcb_connection_t* connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t root() {
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

xcb_atom_t atom(const QByteArray& name) {
    const auto cookie = xcb_intern_atom(connection(), 0, static_cast<quint16>(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection(), cookie, nullptr),
                                               &std::free);
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

xcb_window_t ownerOf(const QByteArray& selection) {
    const auto cookie = xcb_get_selection_owner(connection(), atom(selection));
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection(), cookie, nullptr), &std::free);
    return reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
}

/// Sends the request of a mapped window to the window manager.
void sendToRoot(QWidget* window, const QByteArray& message, std::initializer_list<quint32> data) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(window->winId());
    event.type = atom(message);
    std::copy(data.begin(), data.end(), event.data.data32);
    constexpr quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_send_event(connection(), 0, root(), mask, reinterpret_cast<const char*>(&event));
    xcb_flush(connection());
}

} // namespace

bool isX11() {
    return connection() != nullptr;
}

void setOnAllDesktops(QWidget* window) {
    if (!isX11())
        return;
    constexpr quint32 everyDesktop = 0xFFFFFFFF;
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window->winId()),
                        atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, 32, 1, &everyDesktop);
    if (window->isVisible())
        sendToRoot(window, "_NET_WM_DESKTOP", {everyDesktop, 1});
    xcb_flush(connection());
}

void setSkipTaskbar(QWidget* window, bool skip) {
    if (!isX11() || !window->isVisible())
        return;
    constexpr quint32 fromApplication = 1;
    sendToRoot(window, "_NET_WM_STATE",
               {skip ? 1U : 0U, atom("_NET_WM_STATE_SKIP_TASKBAR"), atom("_NET_WM_STATE_SKIP_PAGER"),
                fromApplication});
}

void keepOffTaskbar(QWidget* window) {
    if (!isX11())
        return;
    if (window->isVisible())
        return setSkipTaskbar(window, true);
    // Qt keeps these when it adds its own before the mapping.
    const xcb_atom_t states[] = {atom("_NET_WM_STATE_SKIP_TASKBAR"), atom("_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window->winId()),
                        atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32, 2, states);
}

void activate(QWidget* window) {
    if (!isX11())
        return;
    constexpr quint32 fromPager = 2;
    sendToRoot(window, "_NET_ACTIVE_WINDOW", {fromPager, XCB_CURRENT_TIME, 0});
}

bool isComposited() {
    return !isX11() || ownerOf("_NET_WM_CM_S0") != XCB_WINDOW_NONE;
}

quint32 tray() {
    return isX11() ? ownerOf("_NET_SYSTEM_TRAY_S0") : xcb_window_t(XCB_WINDOW_NONE);
}

} // namespace X11Window
