#include "UI/Inspector/MemoryKindsBar.h"

#include "Core/Formatters.h"
#include "UI/Style/Painting.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int barHeight = 10;
constexpr int legendGap = 8;
constexpr int dotSide = 8;
constexpr int mostKinds = 3;

} // namespace

struct MemoryKindsBar::Part {
    QString name;
    quint64 bytes;
    Role role;
};

MemoryKindsBar::MemoryKindsBar(QWidget* parent)
    : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QList<MemoryKindsBar::Part> MemoryKindsBar::parts() const {
    QList<Part> parts;
    if (m_kinds.ownBytes)
        parts.append({tr("Own"), *m_kinds.ownBytes, Role::blue});
    if (m_kinds.sharedBytes)
        parts.append({tr("Shared"), *m_kinds.sharedBytes, Role::green});
    if (parts.isEmpty())
        parts.append({tr("In memory, kinds unknown"), m_kinds.residentBytes, Role::gray});
    if (m_kinds.swapBytes)
        parts.append({tr("In swap"), *m_kinds.swapBytes, Role::orange});
    return parts;
}

void MemoryKindsBar::set(const Kinds& kinds) {
    m_kinds = kinds;
    QStringList spoken;
    for (const Part& part : parts())
        spoken.append(QStringLiteral("%1 %2").arg(part.name, Formatters::bytes(part.bytes)));
    setAccessibleName(Formatters::list(spoken));
    update();
}

QSize MemoryKindsBar::sizeHint() const {
    const double line = Painting::lineHeight(Theme::font(TextStyle::callout));
    return {200, barHeight + legendGap + static_cast<int>(line) * mostKinds};
}

void MemoryKindsBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const QList<Part> shown = parts();
    quint64 all = 0;
    for (const Part& part : shown)
        all += part.bytes;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath frame;
    frame.addRoundedRect(QRectF(0, 0, width(), barHeight), barHeight / 2.0, barHeight / 2.0);
    painter.setClipPath(frame);
    painter.fillRect(QRectF(0, 0, width(), barHeight), Theme::color(Role::trackFill));
    double left = 0;
    for (const Part& part : shown) {
        const double length = all > 0 ? double(part.bytes) / double(all) * width() : 0;
        painter.fillRect(QRectF(left, 0, length, barHeight), Theme::color(part.role));
        left += length;
    }
    painter.restore();
    const double line = Painting::lineHeight(Theme::font(TextStyle::callout));
    QRectF row(0, barHeight + legendGap, width(), line);
    for (const Part& part : shown) {
        Painting::drawCard(painter, QRectF(0, row.center().y() - dotSide / 2.0, dotSide, dotSide),
                           dotSide / 2.0, Theme::color(part.role));
        Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText);
        const QString figure = Formatters::bytes(part.bytes);
        QRectF rest = row;
        const QRectF place = Painting::takeRight(rest, Painting::tabularWidth(painter.font(), figure));
        Painting::drawTabular(painter, place, Qt::AlignRight, figure);
        painter.setPen(Theme::color(Role::secondaryText));
        Painting::drawElided(painter, rest.adjusted(dotSide + legendGap, 0, -legendGap, 0), Qt::ElideRight,
                             part.name);
        row.translate(0, line);
    }
}
