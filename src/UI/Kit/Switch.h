#pragma once

#include <QAbstractButton>

/// A check box in the form of a switch, with its text beside it.
class Switch : public QAbstractButton {
    Q_OBJECT

public:
    explicit Switch(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
