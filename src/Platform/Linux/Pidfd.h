#pragma once

#include <QtGlobal>

/// A process held by a descriptor (pidfd_open(2)), so that its id can never come to mean another one.
class Pidfd {
public:
    /// Where it is not open afterwards, errno tells why.
    explicit Pidfd(qint32 pid);
    Pidfd(Pidfd&& other) noexcept;
    Pidfd& operator=(Pidfd&& other) noexcept;
    ~Pidfd();

    bool isOpen() const { return m_descriptor >= 0; }
    /// True as well for one that its parent has not asked about, to which the kernel still delivers signals.
    bool hasEnded() const;
    /// 0, or below with errno set.
    long send(int signal) const;

private:
    int m_descriptor;
};
