#include "Platform/Linux/Pidfd.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <utility>

Pidfd::Pidfd(qint32 pid)
    : m_descriptor(static_cast<int>(syscall(SYS_pidfd_open, pid, 0))) {}

Pidfd::Pidfd(Pidfd&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

Pidfd& Pidfd::operator=(Pidfd&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

Pidfd::~Pidfd() {
    if (isOpen())
        close(m_descriptor);
}

bool Pidfd::hasEnded() const {
    pollfd ended{.fd = m_descriptor, .events = POLLIN, .revents = 0};
    return poll(&ended, 1, 0) != 0;
}

long Pidfd::send(int signal) const {
    return syscall(SYS_pidfd_send_signal, m_descriptor, signal, nullptr, 0);
}
