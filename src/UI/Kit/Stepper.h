#pragma once

#include <QWidget>

class QAbstractButton;

/// A pair of buttons, less and more, that takes a number through a range by steps. The number itself is shown
/// by whoever has the stepper.
class Stepper : public QWidget {
    Q_OBJECT

public:
    struct Range {
        double from;
        double to;
        double step;
    };

    explicit Stepper(const Range& range, QWidget* parent = nullptr);

    double value() const { return m_value; }
    /// Kept as it is, also outside the range; the next step brings it in.
    void setValue(double value);
    /// What the number is, for those who cannot see where the buttons stand.
    void setName(const QString& name);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user changed the value.
    void stepped(double value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAbstractButton* addButton(const QString& symbol, double by);
    void take(double value);
    void enableButtons();

    Range m_range;
    double m_value;
    QAbstractButton* m_less;
    QAbstractButton* m_more;
};
