#pragma once

#include "Core/Models.h"
#include "UI/Optimize/OptimizeCard.h"

class PushButton;

/// The largest caches, and the button that cleans all of them.
class CachesCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit CachesCard(QWidget* parent = nullptr);

    void refresh(const QList<CacheTarget>& targets);
    void setCleaning(bool cleaning);

Q_SIGNALS:
    void cleanAllRequested();

private:
    struct Chip {
        QWidget* widget;
        TextLabel* name;
        TextLabel* size;
    };

    Chip makeChip() const;

    QList<Chip> m_chips;
    PushButton* m_clean;
    bool m_cleaning = false;
};
