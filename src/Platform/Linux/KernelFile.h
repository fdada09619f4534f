#pragma once

#include <QByteArray>

#include <span>
#include <string>
#include <string_view>

/// An open file or folder of procfs or sysfs. The kernel regenerates such a file for every read from its
/// start, so a descriptor stays current and saves the path lookup, which is the greater part of a first read.
class KernelFile {
public:
    KernelFile() = default;
    /// Opens `path`, relative to the open `directory` or with AT_FDCWD to the working directory, for reading
    /// and close-on-exec. On failure `isOpen` returns false and errno is set.
    KernelFile(int directory, const char* path, int extraFlags = 0);
    explicit KernelFile(const std::string& path);
    KernelFile(KernelFile&& other) noexcept;
    KernelFile& operator=(KernelFile&& other) noexcept;
    ~KernelFile() { close(); }

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    void close();

    /// Reads the current text, cut to the size of `buffer`. Returns an empty text and sets errno when it is
    /// unreadable (ESRCH: the process is gone).
    std::string_view read(std::span<char> buffer) const;

    /// Returns the target of the symlink at `path`, relative as above, or an empty path.
    static QByteArray symlinkTarget(int directory, const char* path);
    /// Returns the target of a process's `exe` without the kernel's mark of a deleted file.
    static QByteArray programBehind(int directory, const char* path);

private:
    int m_descriptor = -1;
};
