#include "UI/Settings/HistoryRowDelegate.h"

#include "Core/Formatters.h"
#include "UI/Kit/TableView.h"
#include "UI/Settings/LocalTimeText.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QAbstractItemView>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

using Column = HistoryTableModel::Column;

constexpr int historyPadding = 8;
constexpr Theme::Length historyRowHeight{26};
constexpr Theme::Length okWidth{40};
constexpr Theme::Length historySymbolSize{14};
/// Of a detail, which may be a megabyte long. This is more than any window is wide.
constexpr qsizetype maxPainted = 2000;
constexpr qsizetype maxInToolTip = 4000;

Column columnOf(const QModelIndex& index) {
    return static_cast<Column>(index.column());
}

QFont fontOf(Column column) {
    const QFont caption = Theme::font(TextStyle::caption);
    if (column != Column::kind)
        return caption;
    QFont monospaced = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    monospaced.setPointSizeF(caption.pointSizeF());
    return monospaced;
}

/// Returns the width of the widest date and time of a year.
double maxTimeWidth() {
    using namespace std::chrono;
    const LocalTimeText texts;
    double widest = 0;
    for (unsigned each = 1; each <= 12; ++each) {
        const sys_days date = year(2028) / month(each) / day(28);
        widest = std::max(
            widest, Painting::tabularWidth(fontOf(Column::time), texts.of(date + hours(22) + minutes(58))));
    }
    return widest;
}

void paintOutcome(QPainter& painter, const QRectF& area, bool success) {
    Symbols::draw(painter,
                  success ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("xmark.octagon.fill"),
                  Theme::color(success ? Role::green : Role::red), area, historySymbolSize);
}

} // namespace

int HistoryRowDelegate::widthOf(Column column) {
    switch (column) {
    case Column::time:
        return qRound(maxTimeWidth()) + 1 + 2 * historyPadding;
    case Column::kind:
        return qRound(QFontMetricsF(fontOf(column)).horizontalAdvance(QStringLiteral("forceKill"))) + 1 +
               2 * historyPadding;
    case Column::freed:
        return qRound(Painting::tabularWidth(fontOf(column), QStringLiteral("1023.9 MB"))) + 1 +
               2 * historyPadding;
    case Column::ok:
        return okWidth;
    case Column::detail:
        break;
    }
    return 0;
}

void HistoryRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    const Painting::Mirrored mirrored(*painter, option.rect, option.direction);
    TableView::paintGround(*painter, option);
    const Column column = columnOf(index);
    const auto& model = *static_cast<const HistoryTableModel*>(index.model());
    if (column == Column::ok) {
        paintOutcome(*painter, option.rect, model.filtered(index.row()).success);
        return;
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    const QRectF area = QRectF(option.rect).adjusted(historyPadding, 0, -historyPadding, 0);
    painter->setFont(fontOf(column));
    painter->setPen(Theme::color(column == Column::time || column == Column::kind ? Role::secondaryText
                                                                                  : Role::primaryText));
    if (column == Column::freed)
        Painting::drawTabular(*painter, area, Qt::AlignRight, text);
    else
        Painting::drawElided(*painter, area, Qt::ElideRight, text.left(maxPainted));
}

QSize HistoryRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {okWidth, historyRowHeight};
}

bool HistoryRowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (!index.isValid() || event->type() != QEvent::ToolTip)
        return false;
    const QString text = index.data(Qt::DisplayRole).toString();
    const QFontMetricsF metrics(fontOf(columnOf(index)));
    const bool isWhole = columnOf(index) == Column::ok || metrics.horizontalAdvance(text.left(maxPainted)) <=
                                                              option.rect.width() - 2 * historyPadding;
    const QString shown = text.size() > maxInToolTip ? text.left(maxInToolTip) + u'…' : text;
    QToolTip::showText(event->globalPos(), isWhole ? QString() : Formatters::toolTip(shown), view);
    return true;
}
