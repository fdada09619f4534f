#pragma once

#include <QtGlobal>

#include <sys/stat.h>

/// Tells one content of a file from another without reading it. Made without a status it stands for no file.
struct FileVersion {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 sizeBytes = -1;
    qint64 modifiedSeconds = 0;
    qint64 modifiedNanoseconds = 0;

    static FileVersion of(const struct stat& status) {
        return {.device = status.st_dev,
                .inode = status.st_ino,
                .sizeBytes = status.st_size,
                .modifiedSeconds = status.st_mtim.tv_sec,
                .modifiedNanoseconds = status.st_mtim.tv_nsec};
    }

    bool operator==(const FileVersion&) const = default;
};
