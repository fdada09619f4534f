#include "UI/Cleanup/CacheCard.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Kit/Pressed.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length minCacheCardHeight{110};
constexpr int lineGap = 4;

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
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    actOnPressed(this, m_target, [this](const auto& target) { Q_EMIT opened(target); });
}

QSize CacheCard::sizeHint() const {
    return {220, minCacheCardHeight};
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
    const QString choice = target.isInCleanAll ? QString() : tr("Not in Clean All.");
    QStringList sentences{Formatters::visible(target.reason), choice,
                          Formatters::visible(target.notes.join(u' '))};
    sentences.removeAll(QString());
    const QString notes = sentences.join(u' ');
    setAccessibleDescription(notes);
    setToolTip(Formatters::toolTip(notes));
    update();
}

void CacheCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(Role::cardFill),
                       m_isSelected ? Theme::color(Role::accent, 0.6) : Theme::color(Role::cardBorder));
    if (m_isSelected)
        Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(Role::accent, 0.12));
    Painting::drawFeedback(painter, *this, Theme::cardRadius, 0.6);

    const QRectF area = QRectF(rect()).adjusted(Theme::cardPadding, Theme::cardPadding, -Theme::cardPadding,
                                                -Theme::cardPadding);
    double top = area.top();
    const auto takeLine = [&area, &top](const QFont& font) {
        const double height = QFontMetricsF(font).height();
        const QRectF line(area.left(), top, area.width(), height);
        top += height + lineGap;
        return line;
    };
    Painting::setTextStyle(painter, TextStyle::body, Role::primaryText, QFont::Medium);
    QRectF line = takeLine(painter.font());
    Symbols::draw(painter, m_target.symbol, Theme::color(Role::accent),
                  QRectF(line.left(), line.top(), Theme::iconSize, line.height()), Theme::iconSize);
    line.setLeft(line.left() + Theme::iconSize + Theme::rowSpacing);
    Painting::drawElided(painter, line, Qt::ElideRight, Translations::of(m_target.name));

    painter.setFont(Theme::font(TextStyle::title2, QFont::DemiBold));
    line = takeLine(painter.font());
    const QString size = Formatters::bytes(m_target.sizeBytes);
    Painting::drawTabular(painter, line, Qt::AlignLeft, size);
    line.setLeft(line.left() + Painting::tabularWidth(painter.font(), size) + Theme::rowSpacing);
    Painting::setTextStyle(painter, TextStyle::caption2, Role::secondaryText);
    if (!m_target.isInCleanAll) {
        const QString remark = painter.fontMetrics().elidedText(tr("not in Clean All"), Qt::ElideRight,
                                                                static_cast<int>(line.width()));
        painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, remark);
    }
    const QString remark = m_target.notes.isEmpty() ? m_target.reason : m_target.notes.first();
    if (!remark.isEmpty())
        Painting::drawElided(painter, takeLine(painter.font()), Qt::ElideRight, Formatters::visible(remark));
    const double height = QFontMetricsF(painter.font()).height();
    Painting::drawTabular(painter, QRectF(area.left(), area.bottom() - height, area.width(), height),
                          Qt::AlignLeft, m_scanned);
}
