#include "UI/Optimize/QuickKillsCard.h"

#include "AppModel.h"
#include "UI/Optimize/PresetTile.h"

#include <QGridLayout>

namespace {

constexpr int columns = 2;
constexpr int tileGap = 10;

} // namespace

QuickKillsCard::QuickKillsCard(QWidget* parent)
    : OptimizeCard(tr("Quick Kills"), tr("Preset purges for common RAM hogs"), QStringLiteral("xmark.circle"),
                   Theme::Role::red, parent)
    , m_grid(new QGridLayout) {
    m_grid->setSpacing(tileGap);
    for (int column = 0; column < columns; ++column)
        m_grid->setColumnStretch(column, 1);
    content()->addLayout(m_grid);
}

void QuickKillsCard::refresh(const AppModel& model, const QList<QuickKillPreset>& presets) {
    while (m_tiles.size() > presets.size())
        delete m_tiles.takeLast();
    while (m_tiles.size() < presets.size()) {
        auto* tile = new PresetTile;
        const int index = static_cast<int>(m_tiles.size());
        m_grid->addWidget(tile, index / columns, index % columns);
        connect(tile, &PresetTile::killRequested, this, &QuickKillsCard::killRequested);
        m_tiles.append(tile);
    }
    for (qsizetype i = 0; i < presets.size(); ++i) {
        const QuickKillPreset& preset = presets[i];
        m_tiles[i]->set(preset, model.previewMatches(preset.pattern, preset.minIdleMinutes, preset.minRSSMB));
    }
}
