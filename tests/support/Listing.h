#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

/// Returns a listing as the program `cleanup` prints it, with inodes from 1.
inline QByteArray listingOf(const QList<std::pair<QByteArray, quint64>>& entries,
                            const QByteArray& device = "64") {
    QByteArray text = device + ":2 0 1" + '\0';
    int inode = 0;
    for (const auto& [path, bytes] : entries)
        text += QByteArray::number(++inode) + ' ' + QByteArray::number(bytes) + " 0 - " + path + '\0';
    return text;
}
