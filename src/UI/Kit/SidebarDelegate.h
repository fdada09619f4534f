#pragma once

#include <QStyledItemDelegate>

/// Rows of a sidebar: a symbol, named by `symbolRole`, and a label on a rounded selection.
class SidebarDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int symbolRole = Qt::UserRole;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
