#pragma once

#include "UI/Processes/ProcessTableModel.h"

#include <QStyledItemDelegate>

#include <optional>

/// What a row's buttons do.
enum class RowAction { quit, forceKill, sweep };

/// Draws the cells of the Processes section, the buttons of a row among them. A click means the row that
/// was under the pointer when the button was pressed, wherever that row has gone since.
class ProcessRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int rowHeight = 30;

    using QStyledItemDelegate::QStyledItemDelegate;

    /// The buttons that the row has, in order.
    static QList<RowAction> actionsOf(const ProcessTableRow& row, bool isGrouped);
    static QString helpOf(RowAction action, const ProcessTableRow& row, bool isGrouped);

    /// The mouse was let go there; the view says so, because the row may be elsewhere or gone by now.
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
