#pragma once

#include "UI/Optimize/OptimizeCard.h"

class PushButton;

/// Gives memory back without ending anything that is in use.
class MemoryCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit MemoryCard(QWidget* parent = nullptr);

    /// While a purge runs its button says so and cannot be pressed.
    void setPurging(bool purging);

Q_SIGNALS:
    void freeRAMRequested();
    void nudgeRequested();
    void purgeRequested();

private:
    PushButton* m_purge;
};
