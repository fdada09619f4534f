#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "UI/Kit/RowPool.h"
#include "UI/Optimize/OptimizeCard.h"

class CacheCleanup;
class CacheChip;
class PushButton;
class QHBoxLayout;

/// The largest caches, and the button that cleans all of them.
class CachesCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit CachesCard(QWidget* parent = nullptr);

    void refresh(const CacheCleanup& cleanup);
    /// Sets whether a run that this page has begun goes on, including the scan after it.
    void setCleaning(bool cleaning);

Q_SIGNALS:
    void cleanAllRequested();
    void cancelRequested();

private:
    void refreshChips(QList<CacheTarget> targets);
    void refreshState(const CacheCleanup& cleanup);

    QHBoxLayout* m_chipRow;
    RowPool<CacheChip> m_chips;
    PushButton* m_cancel;
    PushButton* m_clean;
    TextLabel* m_state;
    bool m_cleaning = false;
};
