#pragma once

#include <QWidget>

/// Takes the place of a list that has nothing to show, and says why. The headline may be empty.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    EmptyState(const QString& symbol, const QString& headline, const QString& text,
               QWidget* parent = nullptr);
};
