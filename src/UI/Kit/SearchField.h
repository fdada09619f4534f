#pragma once

#include "UI/Kit/TextField.h"

#include <QString>

/// A line to search by: a magnifier before it, a button that clears it, and Escape does the same.
class SearchField : public TextField {
    Q_OBJECT

public:
    explicit SearchField(const QString& prompt, QWidget* parent = nullptr);

protected:
    void drawLead(QPainter& painter) override;
    void keyPressEvent(QKeyEvent* event) override;
};
