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
    /// Why the last one was not done, which the button's tool tip then says; empty when it was.
    void setNudgeFailure(const QString& reason);
    void setPurgeFailure(const QString& reason);

Q_SIGNALS:
    void freeRAMRequested();
    void nudgeRequested();
    void purgeRequested();

private:
    PushButton* m_nudge;
    PushButton* m_purge;
};
