#pragma once

/// While it lives, a start without a display ends with one line on standard error and status 1. Qt would
/// print several lines and abort.
class DisplayGuard {
public:
    DisplayGuard();
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;
};
