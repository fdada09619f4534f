#pragma once

#include "UI/Kit/Stepper.h"

#include <functional>

/// The row of a form with a label, a number in its unit and the stepper that changes it.
class StepperRow : public QWidget {
    Q_OBJECT

public:
    /// Both texts may contain "%1" for the number.
    struct Look {
        QString label;
        QString value;
        int decimals = 0;                           ///< 0 drops the fraction, 1 rounds to one digit
        std::function<QString(double)> number = {}; ///< writes the number in another way
    };

    StepperRow(Look look, const Stepper::Range& range, QWidget* parent = nullptr);

    double value() const { return m_stepper->value(); }
    void setValue(double value);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when the user has changed the value.
    void stepped(double value);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Returns `pattern` with the number in place of "%1".
    QString text(const QString& pattern) const;
    void showValue();

    Look m_look;
    Stepper* m_stepper;
};
