#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>

/// Reads `/proc/N/environ`: entries "NAME=value", each ended by a NUL. Its program may have overwritten it.
namespace Environment {

/// Returns the values of those of the variables that it has. The first entry of a name counts.
QHash<QByteArray, QByteArray> variables(QByteArrayView environment, const QByteArrayList& names);

} // namespace Environment
