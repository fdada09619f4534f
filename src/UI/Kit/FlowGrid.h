#pragma once

#include <QLayout>
#include <QList>

/// A grid of as many equal columns as have room for items of a least width. Rows are as tall as their
/// tallest item.
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
    /// The height taken; items are moved only when `move` is set.
    int arrange(const QRect& area, bool move) const;

    int m_leastItemWidth;
    QList<QLayoutItem*> m_items;
};
