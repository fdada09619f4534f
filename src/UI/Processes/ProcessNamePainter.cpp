#include "UI/Processes/ProcessNamePainter.h"

#include "Core/Formatters.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QFontMetricsF>
#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

using Branch = ProcessTableRow::Branch;

using ProcessNamePainter::cellPadding;
constexpr Theme::Length rowBadgeHeight{14};
constexpr int rowBadgePadding = 5;
constexpr int indentStep = 16;
constexpr int deepestIndent = 12; // steps; what is deeper stands below that
constexpr int signWidth = 20;
constexpr int signSize = 12;
constexpr double markOpacity = 0.35;

int indentOf(const ProcessTableRow& row) {
    return std::min(row.depth, deepestIndent) * indentStep;
}

/// Draws a ground behind the parts of a text that `drawElided` draws in the same area.
void paintMarks(QPainter& painter, const QRectF& area, const QString& shown,
                const QList<SearchWords::Part>& parts) {
    const Painting::Upright upright(painter, area);
    const QFontMetricsF metrics(painter.font());
    const double all = metrics.horizontalAdvance(shown);
    const double left = upright.isMirrored() ? area.right() - all : area.left();
    for (const SearchWords::Part& part : parts) {
        double begin = metrics.horizontalAdvance(shown.left(part.begin));
        const double length = metrics.horizontalAdvance(shown.left(part.begin + part.length)) - begin;
        if (shown.isRightToLeft())
            begin = all - begin - length;
        const QRectF mark(left + begin, area.center().y() - metrics.height() / 2, length, metrics.height());
        Painting::drawCard(painter, mark, 3, Theme::color(Role::yellow, markOpacity), Qt::transparent);
    }
}

/// Draws "×12" behind the name. Returns the part of `area` before it.
QRectF paintBadge(QPainter& painter, QRectF area, const QString& name, const QString& text, Role role) {
    const QFont font = Theme::font(TextStyle::caption2, QFont::Bold);
    const double width = Painting::tabularWidth(font, text) + 2 * rowBadgePadding;
    const double nameWidth = QFontMetricsF(painter.font()).horizontalAdvance(name) + 1;
    const double left = std::min(area.left() + nameWidth + cellPadding, area.right() - width);
    const QRectF badge(left, area.center().y() - rowBadgeHeight / 2.0, width, rowBadgeHeight);
    painter.save();
    Painting::drawBadge(painter, badge, role, font, text);
    painter.restore();
    area.setRight(left - cellPadding / 2.0);
    return area;
}

QRectF paintSign(QPainter& painter, QRectF area, const ProcessTableRow& row) {
    area.setLeft(area.left() + indentOf(row));
    if (row.branch != Branch::none) {
        const QRectF sign(area.left() - cellPadding / 2.0, area.top(), signWidth, area.height());
        Symbols::draw(painter,
                      row.branch == Branch::folded ? QStringLiteral("chevron.right")
                                                   : QStringLiteral("chevron.down"),
                      Theme::color(Role::secondaryText), sign, signSize);
    }
    area.setLeft(area.left() + signWidth);
    return area;
}

/// Returns a part of the path or the arguments around the first match that the name does not show.
QString excerpt(const ProcSample& process, const SearchWords& words) {
    constexpr qsizetype before = 12;
    if (words.isEmpty() || words.areIn(process.name))
        return {};
    for (const QString& text : {process.arguments, process.executablePath}) {
        const auto parts = words.partsOf(text);
        if (parts.isEmpty())
            continue;
        const qsizetype begin = std::max<qsizetype>(0, parts.first().begin - before);
        return Formatters::visible((begin > 0 ? QStringLiteral("…") : QString()) + text.mid(begin));
    }
    return {};
}

} // namespace

QRect ProcessNamePainter::signRect(const QRect& cell, const ProcessTableRow& row) {
    return {cell.left() + cellPadding / 2 + indentOf(row), cell.top(), signWidth + cellPadding / 2,
            cell.height()};
}

void ProcessNamePainter::paintMarked(QPainter& painter, const QRectF& area, Qt::TextElideMode mode,
                                     const QString& text, const SearchWords& words) {
    if (!words.isEmpty()) {
        const QString shown = QFontMetricsF(painter.font()).elidedText(text, mode, area.width());
        paintMarks(painter, area, shown, words.partsOf(shown));
    }
    Painting::drawElided(painter, area, mode, text);
}

void ProcessNamePainter::paint(QPainter& painter, QRectF area, const ProcessTableModel& model,
                               const ProcessTableRow& row) {
    const QString text = Formatters::visible(row.first.name);
    if (model.listing() == ProcessListing::tree) {
        area = paintSign(painter, area, row);
        if (row.branch == Branch::folded)
            area = paintBadge(painter, area, text, QStringLiteral("+%1").arg(row.processes.size() - 1),
                              Role::gray);
    } else if (model.isGrouped()) {
        const QRectF icon(area.left(), area.top(), Theme::iconSize, area.height());
        Symbols::draw(painter, groupSymbol(row.first.group), Theme::color(Role::secondaryText), icon, 15);
        area.setLeft(icon.right() + cellPadding);
        if (row.processes.size() > 1)
            area = paintBadge(painter, area, text, QStringLiteral("×%1").arg(row.processes.size()),
                              Role::orange);
    }
    paintMarked(painter, area, Qt::ElideMiddle, text, model.words());
    const QString why = model.isGrouped() ? QString() : excerpt(row.first, model.words());
    area.setLeft(area.left() + QFontMetricsF(painter.font()).horizontalAdvance(text) + cellPadding);
    if (why.isEmpty() || area.width() < 3 * cellPadding || row.branch == Branch::folded)
        return;
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    paintMarked(painter, area, Qt::ElideRight, why, model.words());
}
