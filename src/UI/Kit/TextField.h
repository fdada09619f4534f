#pragma once

#include <QLineEdit>

/// A line to type in, in the theme's looks.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    explicit TextField(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    /// Under the text, over the ground.
    virtual void drawLead(QPainter&) {}
};
