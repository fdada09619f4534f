#pragma once

#include <QList>

#include <functional>

/// The row widgets of a list, which are kept and used again as what they show comes and goes.
template <typename Row> class RowPool {
public:
    /// `make` makes a row and puts it in its place behind the others.
    explicit RowPool(std::function<Row*()> make)
        : m_make(std::move(make)) {}

    /// Makes sure of that many rows, where their room, or their place before widgets that are made later,
    /// counts before there is something to show.
    void reserve(qsizetype count) {
        while (m_rows.size() < count)
            m_rows.append(m_make());
    }

    /// Lets `fill` show each of `count` things, by its position, in a row. The other rows are hidden.
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
