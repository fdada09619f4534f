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

    /// Returns whether its rows stand below one another, for screen readers.
    virtual bool isTree() const { return false; }
    /// Says this in the middle while there are no rows.
    void setEmptyText(const QString& text);
    const QString& emptyText() const { return m_emptyText; }

    /// Paints the background of a row that is selected, hovered or focused.
    static void paintGround(QPainter& painter, const QStyleOptionViewItem& option);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// Adds the actions of the row to its menu, before "Copy".
    virtual void fillMenu(QMenu& menu, const QModelIndex& index);

private:
    void openMenu(const QModelIndex& index, const QPoint& at);
    void copySelection() const;

    QString m_emptyText;
};
