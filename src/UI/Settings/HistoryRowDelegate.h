#pragma once

#include "UI/Settings/HistoryTableModel.h"

#include <QStyledItemDelegate>

/// Draws the cells of the action history. A detail that does not fit is shown whole as a tool tip.
class HistoryRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// How wide a column has to be for what it holds; 0 for the details, which take what is left.
    static int widthOf(HistoryTableModel::Column column);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};
