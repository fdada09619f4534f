#include "Platform/Linux/LinuxProcessDetails.h"

#include "Platform/Linux/KernelFile.h"
#include "Platform/Linux/KernelText.h"

#include <QFile>
#include <QScopeGuard>

#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <array>
#include <utility>
#include <vector>

namespace {

/// Returns texts that each end with a NUL, as the kernel has them.
QByteArrayList textsOf(const QByteArray& area) {
    QByteArrayList texts = area.split('\0');
    if (!texts.isEmpty() && texts.last().isEmpty())
        texts.removeLast();
    return texts;
}

/// Returns an empty optional for a file that is refused or gone.
std::optional<QByteArray> wholeFile(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    return file.readAll();
}

} // namespace

LinuxProcessDetails::LinuxProcessDetails(std::string root)
    : m_root(std::move(root)) {}

std::string LinuxProcessDetails::path(qint32 pid, const char* name) const {
    return m_root + '/' + std::to_string(pid) + '/' + name;
}

std::optional<DiskCounters> LinuxProcessDetails::disk(qint32 pid) {
    std::array<char, 512> room;
    const KernelFile file(path(pid, "io"));
    const std::string_view text = file.read(room);
    const auto read = KernelText::numberOf(text, "read_bytes:");
    const auto written = KernelText::numberOf(text, "write_bytes:");
    return read && written ? std::optional(DiskCounters{*read, *written}) : std::nullopt;
}

QByteArrayList LinuxProcessDetails::commandLine(qint32 pid) {
    return textsOf(wholeFile(path(pid, "cmdline")).value_or(QByteArray()));
}

QByteArray LinuxProcessDetails::workingDirectory(qint32 pid) {
    return KernelFile::symlinkTarget(AT_FDCWD, path(pid, "cwd").c_str());
}

QByteArray LinuxProcessDetails::controlGroup(qint32 pid) {
    std::array<char, 4096> room;
    const KernelFile file(path(pid, "cgroup"));
    const auto group = KernelText::valueOf(file.read(room), "0::");
    return group ? QByteArray(group->data(), static_cast<qsizetype>(group->size())) : QByteArray();
}

std::optional<OpenFiles> LinuxProcessDetails::openFiles(qint32 pid, int most) {
    DIR* folder = opendir(path(pid, "fd").c_str());
    if (!folder)
        return std::nullopt;
    const auto closing = qScopeGuard([folder] { closedir(folder); });
    OpenFiles files;
    while (const dirent* entry = readdir(folder)) {
        if (entry->d_name[0] == '.')
            continue;
        ++files.count;
        if (files.first.size() < most)
            files.first.append(KernelFile::symlinkTarget(dirfd(folder), entry->d_name));
    }
    return files;
}

std::optional<QByteArrayList> LinuxProcessDetails::environment(qint32 pid) {
    const auto area = wholeFile(path(pid, "environ"));
    return area ? std::optional(textsOf(*area)) : std::nullopt;
}

QString LinuxProcessDetails::userName(quint32 uid) {
    const long wanted = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> room(wanted > 0 ? static_cast<std::size_t>(wanted) : 16384);
    passwd record{};
    passwd* found = nullptr;
    const int error = getpwuid_r(uid, &record, room.data(), room.size(), &found);
    return error == 0 && found ? QString::fromLocal8Bit(record.pw_name) : QString();
}
