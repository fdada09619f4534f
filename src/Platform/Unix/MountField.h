#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Undoes the octal escapes of a field of mountinfo (proc(5)): "\\040" is a blank.
inline QString unescapedMountField(const QByteArray& field) {
    QByteArray result;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        result.append(isOctal ? static_cast<char>(code) : field[i]);
        i += isOctal ? 3 : 0;
    }
    return QFile::decodeName(result);
}
