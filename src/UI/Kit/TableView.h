#pragma once

#include <QString>
#include <QTreeView>

class QMenu;

/// A table in the theme's looks, whose rows are selected and copied whole. A delegate draws the cells on what
/// `paintGround` has painted.
class TableView : public QTreeView {
    Q_OBJECT

public:
    explicit TableView(const QString& name, QWidget* parent = nullptr);

    /// Paints the background of a row that is selected, hovered or focused.
    static void paintGround(QPainter& painter, const QStyleOptionViewItem& option);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// Adds the actions of the row to its menu, before "Copy".
    virtual void fillMenu(QMenu& menu, const QModelIndex& index);

private:
    void openMenu(const QModelIndex& index, const QPoint& at);
    void copySelection() const;
};
