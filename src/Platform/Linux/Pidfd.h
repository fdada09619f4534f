#pragma once

#include <QtGlobal>

/// A descriptor of a process (pidfd_open(2)), which never refers to a later process with the same PID.
class Pidfd {
public:
    /// Sets errno when it cannot be opened.
    explicit Pidfd(qint32 pid);
    Pidfd(Pidfd&& other) noexcept;
    Pidfd& operator=(Pidfd&& other) noexcept;
    ~Pidfd();

    bool isOpen() const { return m_descriptor >= 0; }
    /// Returns true for a zombie too, to which the kernel still delivers signals.
    bool hasEnded() const;
    /// Returns 0, or a value below with errno set.
    long send(int signal) const;

private:
    int m_descriptor;
};
