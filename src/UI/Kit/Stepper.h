#pragma once

#include <QWidget>

class QAbstractButton;

/// A pair of buttons that change a number within a range. The owner of the stepper shows the number.
class Stepper : public QWidget {
    Q_OBJECT

public:
    struct Range {
        double from;
        double to;
        double step;
        bool wraps = false; ///< The step after the last value is to the first, as on a clock.
    };

    explicit Stepper(const Range& range, QWidget* parent = nullptr);

    const Range& range() const { return m_range; }
    double value() const { return m_value; }
    /// Changes the value as a user does, within the range.
    void change(double value);
    /// Sets any value, also outside the range. The next step brings it into the range.
    void setValue(double value);
    /// Sets the accessible names of the stepper and of its buttons.
    void setName(const QString& name);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when the user has changed the value.
    void stepped(double value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAbstractButton* addButton(const QString& symbol, double by);
    void stepBy(double amount);
    void enableButtons();

    Range m_range;
    double m_value;
    QAbstractButton* m_less;
    QAbstractButton* m_more;
};
