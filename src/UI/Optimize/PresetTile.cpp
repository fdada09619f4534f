#include "UI/Optimize/PresetTile.h"

#include "Core/Formatters.h"
#include "UI/Kit/Pressed.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length presetTileHeight{52};
constexpr int tilePadding = 10;
constexpr Theme::Length tileSymbolWidth{18};
constexpr Theme::Length tileBadgeHeight{18};
constexpr int tileBadgePadding = 6;

} // namespace

PresetTile::PresetTile(QWidget* parent)
    : QAbstractButton(parent) {
    Theme::fixHeight(this, presetTileHeight);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    actOnPressed(this, m_preset, [this](const auto& preset) { Q_EMIT killRequested(preset); });
}

QSize PresetTile::sizeHint() const {
    return {240, presetTileHeight};
}

void PresetTile::set(const QuickKillPreset& preset, int matches) {
    if (preset == m_preset && matches == m_matches)
        return;
    m_preset = preset;
    m_matches = matches;
    const QString name = Formatters::visible(preset.name);
    const QString summary = Formatters::visible(preset.summaryLine());
    setAccessibleName(tr("%1, %2, %3 matching").arg(name, summary, QString::number(matches)));
    setToolTip(Formatters::toolTip(QStringLiteral("%1\n%2").arg(name, summary)));
    update();
}

void PresetTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const bool hits = m_matches > 0;
    Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(Role::gray, 0.06),
                       hits ? Theme::color(Role::red, 0.4) : Theme::color(Role::gray, 0.25));
    Painting::drawFeedback(painter, *this, Theme::cardRadius, 0.6);

    QRectF line = QRectF(rect()).adjusted(tilePadding, 0, -tilePadding, 0);
    Symbols::draw(painter, m_preset.symbol, Theme::color(hits ? Role::red : Role::secondaryText),
                  QRectF(line.left(), 0, tileSymbolWidth, height()), tileSymbolWidth);
    line.setLeft(line.left() + tileSymbolWidth + tilePadding);
    if (hits) {
        const QFont font = Theme::font(TextStyle::caption, QFont::Bold);
        const QString count = QString::number(m_matches);
        const double width =
            std::max<double>(tileBadgeHeight, Painting::tabularWidth(font, count) + 2 * tileBadgePadding);
        const QRectF badge(line.right() - width, (height() - tileBadgeHeight) / 2.0, width, tileBadgeHeight);
        Painting::drawBadge(painter, badge, Role::red, font, count);
        line.setRight(badge.left() - Theme::rowSpacing);
    }
    Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText, QFont::Medium);
    Painting::drawElided(painter, line.adjusted(0, 7, 0, -line.height() / 2), Qt::ElideRight,
                         Formatters::visible(m_preset.name));
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    Painting::drawElided(painter, line.adjusted(0, line.height() / 2, 0, -8), Qt::ElideRight,
                         Formatters::visible(m_preset.summaryLine()));
}
