#pragma once

#include <QString>
#include <QTreeView>

class QMenu;

/// A table in the theme's looks, whose rows are selected and copied whole. A delegate draws the cells, over
/// what `paintGround` puts under them.
class TableView : public QTreeView {
    Q_OBJECT

public:
    explicit TableView(const QString& name, QWidget* parent = nullptr);

    /// The light of a row that is selected, or that the pointer or the keyboard is on.
    static void paintGround(QPainter& painter, const QStyleOptionViewItem& option);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// Puts what can be done with that row into its menu, before "Copy".
    virtual void fillMenu(QMenu& menu, const QModelIndex& index);

private:
    void copySelection() const;
};
