// Starts a program on the X display and measures the time until its first window is shown:
//   first_window PROGRAM [ARGUMENT...]
// prints "MILLISECONDS PID" and ends; the program keeps running. Status 1 without a window after 20 seconds.

#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto timeout = std::chrono::seconds(20);
constexpr int minWidth = 400; ///< smaller ones are tray items or the toolkit's helper windows
constexpr int minHeight = 300;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

bool isLarge(xcb_connection_t* connection, xcb_window_t window) {
    const std::unique_ptr<xcb_get_geometry_reply_t, Free> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    return geometry && geometry->width >= minWidth && geometry->height >= minHeight;
}

/// Returns whether a large window was mapped in time. With a window manager that is the frame, mapped when
/// the window is drawn.
bool awaitWindow(xcb_connection_t* connection, Clock::time_point end) {
    pollfd input{.fd = xcb_get_file_descriptor(connection), .events = POLLIN, .revents = 0};
    while (Clock::now() < end && xcb_connection_has_error(connection) == 0) {
        while (const std::unique_ptr<xcb_generic_event_t, Free> event{xcb_poll_for_event(connection)}) {
            if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY &&
                isLarge(connection, reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window))
                return true;
        }
        poll(&input, 1, 100);
    }
    return false;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: first_window PROGRAM [ARGUMENT...]\n");
        return 2;
    }
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) {
        std::fprintf(stderr, "first_window: no display\n");
        return 2;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);

    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    const bool came = child > 0 && awaitWindow(connection, start + timeout);
    const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
    xcb_disconnect(connection);
    if (!came)
        return 1;
    std::printf("%.0f %d\n", taken.count(), child);
    return 0;
}
