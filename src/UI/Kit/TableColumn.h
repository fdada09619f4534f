#pragma once

#include <QCoreApplication>
#include <QVariant>

/// Returns what a model says of the head of a column, which has a title in the context "Columns" and an
/// alignment.
template <typename Column> QVariant headData(const Column& column, int role) {
    if (role == Qt::DisplayRole)
        return QCoreApplication::translate("Columns", column.title);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    return {};
}

/// Returns what a model says of one cell of the column, which makes the text of a row.
template <typename Column, typename Row> QVariant cellData(const Column& column, const Row& row, int role) {
    if (role == Qt::DisplayRole)
        return column.text(row);
    return role == Qt::TextAlignmentRole ? headData(column, role) : QVariant();
}
