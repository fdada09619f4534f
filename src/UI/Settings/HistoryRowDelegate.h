#pragma once

#include "UI/Settings/HistoryTableModel.h"

#include <QStyledItemDelegate>

/// Draws the cells of the action history. A tool tip shows the whole of a detail that does not fit.
class HistoryRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Returns the width that a column needs, 0 for the details, which take the remaining width.
    static int widthOf(HistoryTableModel::Column column);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};
