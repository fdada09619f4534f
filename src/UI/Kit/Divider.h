#pragma once

#include <QWidget>

/// A line of one point across a column.
class Divider : public QWidget {
    Q_OBJECT

public:
    explicit Divider(QWidget* parent = nullptr)
        : QWidget(parent) {
        setFixedHeight(1);
        setAutoFillBackground(true);
        setBackgroundRole(QPalette::Mid);
    }
};
