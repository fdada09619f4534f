#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

/// Returns a listing as the program `cleanup` prints it, with inodes from 1, of a folder that takes nothing
/// itself.
inline QByteArray listingOf(const QList<std::pair<QByteArray, quint64>>& entries,
                            const QByteArray& device = "64") {
    quint64 total = 0;
    for (const auto& [path, bytes] : entries)
        total += bytes;
    QByteArray text = device + ":2 " + QByteArray::number(total) + " 1" + '\0';
    int inode = 0;
    for (const auto& [path, bytes] : entries)
        text += QByteArray::number(++inode) + ' ' + QByteArray::number(bytes) + " 0 - " + path + '\0';
    return text;
}

/// Returns the listing of a folder that takes this much with what is not listed.
inline QByteArray withTotal(const QByteArray& listing, quint64 bytes) {
    QByteArrayList fields = listing.left(listing.indexOf('\0')).split(' ');
    fields[1] = QByteArray::number(bytes);
    return fields.join(' ') + listing.mid(listing.indexOf('\0'));
}
