#pragma once

#include "Platform/Linux/KernelFile.h"

#include <QtGlobal>

#include <memory>
#include <span>
#include <string>
#include <vector>

/// The folder in which procfs keeps one folder a process, held open. The C library's readdir would fetch
/// it in far smaller pieces and hand out text; here a listing takes a handful of calls.
class ProcFolder {
public:
    struct Row {
        qint32 pid = 0;
        quint64 inode = 0; ///< of the process's folder; another process under the same id has another
    };

    explicit ProcFolder(const std::string& path);

    int descriptor() const { return m_folder.descriptor(); }
    /// Every process, by rising id. Empty on failure. Valid until the next call.
    std::span<const Row> rows();

private:
    std::span<const Row> sorted();
    void takeRows(std::span<const char> records);

    KernelFile m_folder;
    std::unique_ptr<char[]> m_room;
    std::vector<Row> m_rows;
};
