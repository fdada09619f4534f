#pragma once

#include <QWidget>

/// A line across a column, one point thick.
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
