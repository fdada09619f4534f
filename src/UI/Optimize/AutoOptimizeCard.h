#pragma once

#include "UI/Optimize/OptimizeCard.h"

class QCheckBox;

/// The switch of the periodic optimizer.
class AutoOptimizeCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit AutoOptimizeCard(QWidget* parent = nullptr);

    void refresh(bool isEnabled);

Q_SIGNALS:
    void switched(bool enabled);

private:
    QCheckBox* m_switch;
    TextLabel* m_state;
};
