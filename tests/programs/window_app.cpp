#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

class Window {
public:
    Window()
        : m_connection(xcb_connect(nullptr, nullptr)) {
        const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_id = xcb_generate_id(m_connection);
        const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_id, screen->root, 10, 10, 120, 80, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK, &events);
    }

    ~Window() { xcb_disconnect(m_connection); }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    void describe(const std::string& name, std::uint32_t pid) {
        char host[HOST_NAME_MAX + 1] = {};
        gethostname(host, HOST_NAME_MAX);
        const std::string names = "instance" + std::string(1, '\0') + name + '\0';
        set("WM_CLASS", XCB_ATOM_STRING, 8, names.size(), names.data());
        set("WM_CLIENT_MACHINE", XCB_ATOM_STRING, 8, std::string(host).size(), host);
        set("_NET_WM_PID", XCB_ATOM_CARDINAL, 32, 1, &pid);
        const xcb_atom_t closing = atom("WM_DELETE_WINDOW");
        set("WM_PROTOCOLS", XCB_ATOM_ATOM, 32, 1, &closing);
    }

    /// Shows the window until it is asked to close, or for ever.
    void run(bool isStubborn, bool hides) {
        xcb_map_window(m_connection, m_id);
        xcb_flush(m_connection);
        while (auto* event = xcb_wait_for_event(m_connection)) {
            const int type = event->response_type & 0x7f;
            std::free(event);
            if (type == XCB_MAP_NOTIFY) {
                std::puts("shown");
                std::fflush(stdout);
            } else if (type == XCB_CLIENT_MESSAGE && hides) {
                xcb_unmap_window(m_connection, m_id);
                xcb_flush(m_connection);
            } else if (type == XCB_CLIENT_MESSAGE && !isStubborn) {
                return;
            }
        }
        while (isStubborn) // the display is gone
            pause();
    }

private:
    xcb_atom_t atom(const std::string& name) {
        const auto cookie =
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.c_str());
        auto* reply = xcb_intern_atom_reply(m_connection, cookie, nullptr);
        const xcb_atom_t value = reply ? reply->atom : 0;
        std::free(reply);
        return value;
    }

    void set(const char* property, xcb_atom_t type, uint8_t bits, size_t count, const void* data) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_id, atom(property), type, bits,
                            static_cast<uint32_t>(count), data);
    }

    xcb_connection_t* m_connection;
    xcb_window_t m_id;
};

} // namespace

/// An application with one window: window_app CLASS polite|hiding|stubborn [PID]. It prints "shown" once the
/// window is shown. A hiding one hides the window when asked to close, as for the tray; a stubborn one
/// ignores the request, SIGTERM and the end of its display. PID is the value of _NET_WM_PID.
int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const bool isStubborn = std::string(argv[2]) == "stubborn";
    if (isStubborn)
        signal(SIGTERM, SIG_IGN);
    Window window;
    window.describe(argv[1], argc > 3 ? static_cast<std::uint32_t>(std::atoi(argv[3]))
                                      : static_cast<std::uint32_t>(getpid()));
    window.run(isStubborn, std::string(argv[2]) == "hiding");
}
