#pragma once

#include "Core/Relief/QuickKillPreset.h"
#include "UI/Kit/RowPool.h"
#include "UI/Optimize/OptimizeCard.h"

class AppModel;
class PresetTile;
class QGridLayout;

/// One tile per preset, two abreast.
class QuickKillsCard : public OptimizeCard {
    Q_OBJECT

public:
    explicit QuickKillsCard(QWidget* parent = nullptr);

    void refresh(const AppModel& model, const QList<QuickKillPreset>& presets);

Q_SIGNALS:
    void killRequested(const QuickKillPreset& preset);

private:
    QGridLayout* m_grid;
    RowPool<PresetTile> m_tiles;
};
