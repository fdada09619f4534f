#pragma once

#include "Cli/Table.h"

#include <QStringList>

/// Chooses and orders the processes of a document.
namespace ProcessRows {

struct Choice {
    QString order; ///< one of `orders`, empty for the first
    QString group; ///< one of `groups`, empty for all
    quint64 minBytes = 0;
    bool isTree = false; ///< children below their parents, each with its "depth"
};

QStringList orders();
QStringList groups();

QJsonArray chosen(const QJsonArray& processes, const Choice& choice);

/// Returns a column of names, indented by "depth".
Column name(const QString& title);

} // namespace ProcessRows
