#pragma once

#include "Core/Sessions/Session.h"
#include "UI/Kit/RowPool.h"

#include <QWidget>

class QVBoxLayout;

/// One process of a tree: its part, name, ports, memory and age.
class SessionProcessRow : public QWidget {
    Q_OBJECT

public:
    /// `trailing` is the width of the column right of the memory.
    explicit SessionProcessRow(int trailing, QWidget* parent = nullptr);

    /// `depth` is that below the rows of the tree that stand leftmost.
    void set(const SessionProcess& process, int depth, Instant now);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    SessionPart m_part = SessionPart::command;
    int m_depth = 0;
    QString m_name;
    QString m_ports;
    QString m_memory;
    QString m_age;
    int m_trailing;
};

/// The processes of an open row. It makes their rows when it is filled first.
class SessionTree : public QWidget {
    Q_OBJECT

public:
    explicit SessionTree(int trailing, QWidget* parent = nullptr);

    void set(const QList<SessionProcess>& processes, Instant now);

private:
    QVBoxLayout* m_column;
    RowPool<SessionProcessRow> m_rows;
};
