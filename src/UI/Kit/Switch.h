#pragma once

#include <QAbstractButton>

/// A check box in the form of a switch, with its text beside it.
class Switch : public QAbstractButton {
    Q_OBJECT

public:
    explicit Switch(const QString& text, QWidget* parent = nullptr);

    /// As the row of a form: the text first, the switch at the far end, and the whole row can be pressed.
    void setSpread();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawTrack(QPainter& painter, const QRectF& ground, double opacity) const;

    bool m_isSpread = false;
};
