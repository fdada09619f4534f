#pragma once

#include <QWidget>

/// What stands in the place of a list that has nothing to show, and why. The headline may be empty.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    EmptyState(const QString& symbol, const QString& headline, const QString& text,
               QWidget* parent = nullptr);
};
