#include "UI/Optimize/QuickKillsCard.h"

#include "Model/ProcessActions.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Optimize/PresetTile.h"

#include <QGridLayout>

namespace {

constexpr int tileColumns = 2;
constexpr int tileGap = 10;

} // namespace

QuickKillsCard::QuickKillsCard(QWidget* parent)
    : OptimizeCard(tr("Quick Kills"), tr("Preset purges for common RAM hogs"), QStringLiteral("xmark.circle"),
                   Theme::Role::red, parent)
    , m_grid(new QGridLayout)
    , m_tiles([this] {
        auto* tile = new PresetTile;
        connect(tile, &PresetTile::killRequested, this, &QuickKillsCard::killRequested);
        const int index = m_grid->count();
        m_grid->addWidget(tile, index / tileColumns, index % tileColumns);
        if (index > 0) // the cards below have their stops already
            setTabOrder(m_grid->itemAt(index - 1)->widget(), tile);
        return tile;
    }) {
    m_grid->setSpacing(tileGap);
    for (int column = 0; column < tileColumns; ++column)
        m_grid->setColumnStretch(column, 1);
    content()->addLayout(m_grid);
    m_tiles.reserve(1);
    m_nothing =
        addLine(tr("No presets. The settings add some under Quick Kills, or bring the built-in ones back."));
}

void QuickKillsCard::refresh(const ProcessActions& actions, const QList<QuickKillPreset>& presets) {
    m_nothing->setVisible(presets.isEmpty());
    m_tiles.show(presets.size(), [&](PresetTile& tile, qsizetype i) {
        const QuickKillPreset& preset = presets[i];
        tile.set(preset, actions.previewMatches(preset.pattern, preset.minIdleMinutes, preset.minRSSMB));
    });
}
