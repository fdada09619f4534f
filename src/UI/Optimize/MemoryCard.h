#pragma once

#include "UI/Optimize/OptimizeCard.h"

class PushButton;

/// Gives memory back without ending anything that is in use.
class MemoryCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit MemoryCard(QWidget* parent = nullptr);

    /// Disables the button of the purge, says on it that one is running, and offers to stop it.
    void setPurging(bool purging);
    /// Sets why the last one failed, as the button's tool tip. An empty reason removes it.
    void setNudgeFailure(const QString& reason);
    void setPurgeFailure(const QString& reason);

Q_SIGNALS:
    void freeRAMRequested();
    void nudgeRequested();
    void purgeRequested();
    void stopRequested(); ///< of the purge

private:
    PushButton* m_nudge;
    PushButton* m_purge;
    PushButton* m_stop;
};
