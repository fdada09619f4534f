#pragma once

#include "Core/Relief/QuickKillPreset.h"
#include "UI/Kit/RowPool.h"
#include "UI/Optimize/OptimizeCard.h"

class PresetTile;
class ProcessActions;
class QGridLayout;

/// A tile for each preset, in two columns.
class QuickKillsCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit QuickKillsCard(QWidget* parent = nullptr);

    void refresh(const ProcessActions& actions, const QList<QuickKillPreset>& presets);

Q_SIGNALS:
    void killRequested(const QuickKillPreset& preset);

private:
    QGridLayout* m_grid;
    TextLabel* m_nothing;
    RowPool<PresetTile> m_tiles;
};
