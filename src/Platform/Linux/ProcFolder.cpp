#include "Platform/Linux/ProcFolder.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>

namespace {

constexpr size_t bufferSize = 128 * 1024; // some 4,000 processes at 32 bytes each

/// One record of getdents64(2), followed by the name and a NUL.
struct Record {
    quint64 inode;
    qint64 offset;
    quint16 length;
    quint8 type;
};
constexpr size_t nameOffset = offsetof(Record, type) + sizeof(Record::type);

/// Returns the PID in a name, or 0 for other files.
qint32 pidNamed(const char* name) {
    qint64 pid = 0;
    for (; *name != 0; ++name) {
        if (*name < '0' || *name > '9')
            return 0;
        pid = pid * 10 + (*name - '0');
        if (pid > std::numeric_limits<qint32>::max())
            return 0;
    }
    return static_cast<qint32>(pid);
}

} // namespace

ProcFolder::ProcFolder(const std::string& path)
    : m_folder(AT_FDCWD, path.c_str(), O_DIRECTORY)
    , m_buffer(std::make_unique<char[]>(bufferSize)) {}

std::span<const ProcFolder::Row> ProcFolder::rows() {
    m_rows.clear();
    if (lseek(m_folder.descriptor(), 0, SEEK_SET) != 0)
        return {};
    for (;;) {
        const auto length = syscall(SYS_getdents64, m_folder.descriptor(), m_buffer.get(), bufferSize);
        if (length <= 0)
            return length == 0 ? sorted() : std::span<const Row>();
        takeRows({m_buffer.get(), static_cast<size_t>(length)});
    }
}

/// Sorts by PID where needed: the kernel lists in that order, a copy of procfs on a disk in any.
std::span<const ProcFolder::Row> ProcFolder::sorted() {
    const auto byPid = [](const Row& a, const Row& b) { return a.pid < b.pid; };
    if (!std::is_sorted(m_rows.begin(), m_rows.end(), byPid))
        std::sort(m_rows.begin(), m_rows.end(), byPid);
    return m_rows;
}

void ProcFolder::takeRows(std::span<const char> records) {
    while (records.size() > nameOffset) {
        Record record;
        std::memcpy(&record, records.data(), nameOffset);
        if (const auto pid = pidNamed(records.data() + nameOffset); pid > 0)
            m_rows.push_back({.pid = pid, .inode = record.inode});
        records = records.subspan(record.length);
    }
}
