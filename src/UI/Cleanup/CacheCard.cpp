#include "UI/Cleanup/CacheCard.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Kit/Painting.h"
#include "UI/Kit/Symbols.h"
#include "UI/Kit/ToolTip.h"

#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int leastHeight = 110;
constexpr int lineGap = 6;

QString scannedText(const std::optional<Instant>& scanned, Instant now) {
    if (!scanned)
        return CacheCard::tr("Not scanned yet");
    return CacheCard::tr("Scanned %1")
        .arg(Formatters::ago(std::chrono::duration<double>(now - *scanned).count()));
}

} // namespace

CacheCard::CacheCard(QWidget* parent)
    : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &CacheCard::pressed, this, [this] { m_pressed = m_target; });
    connect(this, &CacheCard::clicked, this, [this] { Q_EMIT opened(m_pressed); });
}

QSize CacheCard::sizeHint() const {
    return {220, leastHeight};
}

void CacheCard::set(const CacheTarget& target, bool isSelected, Instant now) {
    const QString scanned = scannedText(target.lastScanned, now);
    if (target == m_target && isSelected == m_isSelected && scanned == m_scanned)
        return;
    m_target = target;
    m_isSelected = isSelected;
    m_scanned = scanned;
    setAccessibleName(QStringLiteral("%1, %2, %3")
                          .arg(Translations::of(target.name), Formatters::bytes(target.sizeBytes), scanned));
    const QString notes = Formatters::visible(target.notes.join(u' '));
    setAccessibleDescription(notes);
    setToolTip(plainToolTip(notes));
    update();
}

void CacheCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(Role::cardFill),
                       m_isSelected ? Theme::color(Role::accent, 0.6) : Theme::color(Role::cardBorder));
    if (m_isSelected)
        Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(Role::accent, 0.12),
                           Qt::transparent);
    if (underMouse() || isDown())
        Painting::drawCard(painter, rect(), Theme::cardRadius,
                           Theme::color(Role::hoverFill, isDown() ? 1 : 0.6), Qt::transparent);
    if (hasFocus())
        Painting::drawFocusRing(painter, rect(), Theme::cardRadius);

    const QRectF area = QRectF(rect()).adjusted(Theme::cardPadding, Theme::cardPadding, -Theme::cardPadding,
                                                -Theme::cardPadding);
    double top = area.top();
    const auto takeLine = [&area, &top](const QFont& font) {
        const double height = QFontMetricsF(font).height();
        const QRectF line(area.left(), top, area.width(), height);
        top += height + lineGap;
        return line;
    };
    painter.setFont(Theme::font(TextStyle::body, QFont::Medium));
    painter.setPen(Theme::color(Role::primaryText));
    QRectF line = takeLine(painter.font());
    Symbols::draw(painter, m_target.symbol, Theme::color(Role::accent),
                  QRectF(line.left(), line.top(), Theme::iconSize, line.height()), Theme::iconSize);
    line.setLeft(line.left() + Theme::iconSize + Theme::rowSpacing);
    Painting::drawElided(painter, line, Qt::ElideRight, Translations::of(m_target.name));

    painter.setFont(Theme::font(TextStyle::title2, QFont::DemiBold));
    Painting::drawTabular(painter, takeLine(painter.font()), Qt::AlignLeft,
                          Formatters::bytes(m_target.sizeBytes));
    painter.setFont(Theme::font(TextStyle::caption2));
    painter.setPen(Theme::color(Role::secondaryText));
    if (!m_target.notes.isEmpty())
        Painting::drawElided(painter, takeLine(painter.font()), Qt::ElideRight,
                             Formatters::visible(m_target.notes.first()));
    const double height = QFontMetricsF(painter.font()).height();
    Painting::drawTabular(painter, QRectF(area.left(), area.bottom() - height, area.width(), height),
                          Qt::AlignLeft, m_scanned);
}
