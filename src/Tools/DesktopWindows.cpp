#include "Tools/DesktopWindows.h"

#include <xcb/res.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply> using Owned = std::unique_ptr<Reply, Free>;

template <typename Reply> Owned<Reply> owned(Reply* reply) {
    return Owned<Reply>(reply);
}

bool contains(const std::vector<std::uint32_t>& words, std::uint32_t word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

} // namespace

namespace Tools {

DesktopWindows::DesktopWindows()
    : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection) == 0)
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
}

DesktopWindows::~DesktopWindows() {
    xcb_disconnect(m_connection);
}

std::uint32_t DesktopWindows::atom(const std::string& name) {
    const auto found = m_atoms.find(name);
    if (found != m_atoms.end())
        return found->second;
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.c_str());
    const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return m_atoms[name] = reply ? reply->atom : 0;
}

std::string DesktopWindows::property(std::uint32_t window, const std::string& name) {
    constexpr std::uint32_t maxWords = 1 << 16;
    const auto cookie =
        xcb_get_property(m_connection, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, maxWords);
    const auto reply = owned(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<size_t>(xcb_get_property_value_length(reply.get()))};
}

std::vector<std::uint32_t> DesktopWindows::words(std::uint32_t window, const std::string& name) {
    const std::string bytes = property(window, name);
    std::vector<std::uint32_t> values(bytes.size() / sizeof(std::uint32_t));
    if (!values.empty())
        std::memcpy(values.data(), bytes.data(), values.size() * sizeof(std::uint32_t));
    return values;
}

std::vector<std::uint32_t> DesktopWindows::shownChildren() {
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_root), nullptr));
    if (!tree)
        return {};
    const auto* children = xcb_query_tree_children(tree.get());
    std::vector<std::uint32_t> shown;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const auto cookie = xcb_get_window_attributes(m_connection, children[i]);
        const auto attributes = owned(xcb_get_window_attributes_reply(m_connection, cookie, nullptr));
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE)
            shown.push_back(children[i]);
    }
    return shown;
}

/// Asks the server, which has the PID from the kernel. A client may set _NET_WM_PID to any number.
std::optional<pid_t> DesktopWindows::ownerOf(std::uint32_t window) {
    const auto* extension = xcb_get_extension_data(m_connection, &xcb_res_id);
    if (!extension || !extension->present) // a request to it would end the connection
        return std::nullopt;
    const xcb_res_client_id_spec_t question{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto cookie = xcb_res_query_client_ids(m_connection, 1, &question);
    const auto reply = owned(xcb_res_query_client_ids_reply(m_connection, cookie, nullptr));
    if (!reply || reply->num_ids != 1)
        return std::nullopt;
    const auto* id = xcb_res_query_client_ids_ids_iterator(reply.get()).data;
    if (xcb_res_client_id_value_value_length(id) != 1)
        return std::nullopt;
    return static_cast<pid_t>(*xcb_res_client_id_value_value(id));
}

std::vector<DesktopWindow> DesktopWindows::list() {
    std::vector<DesktopWindow> windows;
    if (m_root == 0)
        return windows;
    // The list of a window manager that has ended remains; its check window is gone.
    const auto manager = words(m_root, "_NET_SUPPORTING_WM_CHECK");
    const bool isManaged = !manager.empty() && words(manager.front(), "_NET_SUPPORTING_WM_CHECK") == manager;
    for (const auto id : isManaged ? words(m_root, "_NET_CLIENT_LIST") : shownChildren())
        windows.push_back({.id = id, .pid = ownerOf(id)});
    return windows;
}

void DesktopWindows::send(std::uint32_t target, std::uint32_t mask, std::uint32_t window,
                          const std::string& type, std::uint32_t first, std::uint32_t second) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(type);
    message.data.data32[0] = first;
    message.data.data32[1] = second;
    xcb_send_event(m_connection, 0, target, mask, reinterpret_cast<const char*>(&message));
    xcb_flush(m_connection);
}

void DesktopWindows::close(std::uint32_t window) {
    constexpr std::uint32_t fromTool = 2; // Extended Window Manager Hints, source indication
    constexpr std::uint32_t toManager =
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
    if (contains(words(m_root, "_NET_SUPPORTED"), atom("_NET_CLOSE_WINDOW")))
        send(m_root, toManager, window, "_NET_CLOSE_WINDOW", XCB_CURRENT_TIME, fromTool);
    else if (contains(words(window, "WM_PROTOCOLS"), atom("WM_DELETE_WINDOW")))
        send(window, XCB_EVENT_MASK_NO_EVENT, window, "WM_PROTOCOLS", atom("WM_DELETE_WINDOW"),
             XCB_CURRENT_TIME);
}

} // namespace Tools
