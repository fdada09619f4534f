#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct xcb_connection_t;

namespace Tools {

/// A window that a person sees as one.
struct DesktopWindow {
    std::uint32_t id = 0;
    std::optional<pid_t> pid; ///< of its client on this machine, by the X server
};

/// The windows on the X display in DISPLAY, none without one. They are closed by a window manager's request.
class DesktopWindows {
public:
    DesktopWindows();
    ~DesktopWindows();
    DesktopWindows(const DesktopWindows&) = delete;
    DesktopWindows& operator=(const DesktopWindows&) = delete;

    /// Returns the window manager's list, or without one all windows shown.
    std::vector<DesktopWindow> list();
    /// Asks the window's program to close it. The program may prompt or refuse.
    void close(std::uint32_t window);

private:
    std::uint32_t atom(const std::string& name);
    std::string property(std::uint32_t window, const std::string& name);
    std::vector<std::uint32_t> words(std::uint32_t window, const std::string& name);
    std::vector<std::uint32_t> shownChildren();
    std::optional<pid_t> ownerOf(std::uint32_t window);
    void send(std::uint32_t target, std::uint32_t mask, std::uint32_t window, const std::string& type,
              std::uint32_t first, std::uint32_t second);

    xcb_connection_t* m_connection;
    std::uint32_t m_root = 0;
    std::map<std::string, std::uint32_t> m_atoms;
};

} // namespace Tools
