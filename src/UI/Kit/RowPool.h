#pragma once

#include <QList>

#include <functional>

/// The row widgets of a list, which are reused as its entries come and go.
template <typename Row> class RowPool {
public:
    /// `make` creates a row and adds it to the layout, after the others.
    explicit RowPool(std::function<Row*()> make)
        : m_make(std::move(make)) {}

    /// Creates rows until there are `count`. A list needs that when its height, or its place before widgets
    /// that are created later, matters before there is something to show.
    void reserve(qsizetype count) {
        while (m_rows.size() < count)
            m_rows.append(m_make());
    }

    /// Calls `fill(row, index)` for the first `count` rows, and hides the other rows.
    template <typename Fill> void show(qsizetype count, Fill fill) {
        reserve(count);
        for (qsizetype i = 0; i < m_rows.size(); ++i) {
            if (i < count)
                fill(*m_rows[i], i);
            m_rows[i]->setVisible(i < count);
        }
    }

private:
    std::function<Row*()> m_make;
    QList<Row*> m_rows;
};
