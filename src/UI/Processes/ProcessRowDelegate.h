#pragma once

#include "UI/Processes/ProcessTableModel.h"

#include <QStyledItemDelegate>

#include <optional>

/// What a row's buttons do.
enum class RowAction { quit, forceKill, sweep };

/// Draws the cells and the buttons of the rows of the Processes section. A click means the row whose button
/// was pressed, wherever that row has moved since.
class ProcessRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int rowHeight = 30;

    using QStyledItemDelegate::QStyledItemDelegate;

    /// Returns the actions of the row's buttons, in order.
    static QList<RowAction> actionsOf(const ProcessTableRow& row, bool isGrouped);
    static QString helpOf(RowAction action, const ProcessTableRow& row, bool isGrouped);

    /// Ends the click. The view calls it on a release, as the row may have moved or gone by then.
    void release(const QPoint& position);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);

private:
    struct Pressed {
        RowAction action;
        ProcessTableRow row;
        QRect button; ///< where it was
    };

    std::optional<Pressed> m_pressed;
};
