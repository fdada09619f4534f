#pragma once

#include "Platform/Linux/KernelFile.h"

#include <QtGlobal>

#include <memory>
#include <span>
#include <string>
#include <vector>

/// The open folder of procfs with one folder per process. It lists them in fewer system calls than
/// readdir(3), whose buffer is far smaller.
class ProcFolder {
public:
    struct Row {
        qint32 pid = 0;
        quint64 inode = 0; ///< of the process's folder; differs for a later process with the same PID
    };

    explicit ProcFolder(const std::string& path);

    int descriptor() const { return m_folder.descriptor(); }
    /// Returns all processes by ascending PID, valid until the next call. Returns an empty span on failure.
    std::span<const Row> rows();

private:
    std::span<const Row> sorted();
    void takeRows(std::span<const char> records);

    KernelFile m_folder;
    std::unique_ptr<char[]> m_buffer;
    std::vector<Row> m_rows;
};
