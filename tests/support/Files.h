#pragma once

#include <QFile>

#include <csignal>
#include <sys/resource.h>

/// Returns the content of the file, "missing" where it cannot be read.
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

/// Keeps the files of this process below `bytes` for its lifetime, as a full disk does.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};
