#pragma once

#include <QLayout>
#include <QList>

/// A grid of as many equal columns as fit at their minimum width. A row is as tall as its tallest item.
class FlowGrid : public QLayout {
    Q_OBJECT

public:
    FlowGrid(int minItemWidth, int spacing, QWidget* parent = nullptr);
    ~FlowGrid() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return arrange(QRect(0, 0, width, 0), false); }
    void setGeometry(const QRect& area) override;

private:
    /// Returns the height of all rows. Moves the items only when `move` is set.
    int arrange(const QRect& area, bool move) const;

    int m_minItemWidth;
    QList<QLayoutItem*> m_items;
};
