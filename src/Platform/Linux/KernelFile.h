#pragma once

#include <QByteArray>

#include <span>
#include <string>
#include <string_view>

/// An open descriptor on a file or folder of procfs or sysfs. The kernel writes such a file anew for every
/// read from its start, so one descriptor answers for as long as the thing it describes lives, and saves
/// the path walk and the set-up that make up most of the price of a first read.
class KernelFile {
public:
    KernelFile() = default;
    /// Opens for reading, closed on exec. `path` is relative to the open folder `directory`, or to the
    /// working folder with AT_FDCWD. On failure the file is not open and errno tells why.
    KernelFile(int directory, const char* path, int extraFlags = 0);
    explicit KernelFile(const std::string& path);
    KernelFile(KernelFile&& other) noexcept;
    KernelFile& operator=(KernelFile&& other) noexcept;
    ~KernelFile() { close(); }

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    void close();

    /// The text as it is now, no more than `room` holds. Empty when it could not be read, with errno set:
    /// ESRCH for a process that is gone.
    std::string_view read(std::span<char> room) const;

    /// What the link at `path`, relative as above, points to; empty when that may not be read.
    static QByteArray linkTarget(int directory, const char* path);
    /// The same of the `exe` of a process, without the kernel's mark of a program that was replaced on disk,
    /// as an update does.
    static QByteArray programBehind(int directory, const char* path);

private:
    int m_descriptor = -1;
};
