#pragma once

#include "UI/Processes/ProcessTableModel.h"
#include "UI/Style/Theme.h"

#include <QStyledItemDelegate>

#include <optional>

/// Draws the cells and the buttons of the rows of the Processes section. Buttons are on the row that is
/// hovered, selected or focused. A click means the row whose button was pressed, wherever that row has moved
/// since.
class ProcessRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr Theme::Length rowHeight{30};

    using QStyledItemDelegate::QStyledItemDelegate;

    /// Ends the click. The view calls it on a release, as the row may have moved or gone by then.
    void release(const QPoint& position);
    /// Returns whether a button is pressed.
    bool isPressed() const { return m_pressed.has_value(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    /// Emitted when the user folds or opens a branch of the tree.
    void foldToggled(const ProcessTableRow& row);

private:
    struct Pressed {
        std::optional<RowAction> action; ///< none for the sign before the name of a branch
        ProcessTableRow row;
        QRect place; ///< where the button was
    };

    static std::optional<Pressed> hit(const QPoint& position, const QStyleOptionViewItem& option,
                                      const QModelIndex& index);

    std::optional<Pressed> m_pressed;
};
