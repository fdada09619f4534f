#include "Platform/Linux/KernelFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <utility>

KernelFile::KernelFile(int directory, const char* path, int extraFlags)
    : m_descriptor(openat(directory, path, O_RDONLY | O_CLOEXEC | extraFlags)) {}

KernelFile::KernelFile(const std::string& path)
    : KernelFile(AT_FDCWD, path.c_str()) {}

KernelFile::KernelFile(KernelFile&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

KernelFile& KernelFile::operator=(KernelFile&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

void KernelFile::close() {
    if (isOpen())
        ::close(std::exchange(m_descriptor, -1));
}

std::string_view KernelFile::read(std::span<char> buffer) const {
    ssize_t length = 0;
    do
        length = pread(m_descriptor, buffer.data(), buffer.size(), 0);
    while (length < 0 && errno == EINTR);
    return {buffer.data(), length > 0 ? static_cast<size_t>(length) : 0};
}

QByteArray KernelFile::symlinkTarget(int directory, const char* path) {
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const auto length = readlinkat(directory, path, target.data(), target.size());
    target.truncate(std::max<qsizetype>(length, 0));
    return target;
}

QByteArray KernelFile::programBehind(int directory, const char* path) {
    QByteArray target = symlinkTarget(directory, path);
    constexpr QByteArrayView replaced = " (deleted)";
    if (target.endsWith(replaced))
        target.chop(replaced.size());
    return target;
}
