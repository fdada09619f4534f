#include "UI/Kit/TableHeader.h"

#include "UI/Kit/Painting.h"
#include "UI/Kit/Symbols.h"

#include <QPainter>

#include <algorithm>

using Theme::Role;

namespace {

constexpr int headerHeight = 28;
constexpr int padding = 8;
constexpr int chevronSize = 10;

} // namespace

TableHeader::TableHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent) {
    setFixedHeight(headerHeight);
    setMinimumSectionSize(40);
}

QSize TableHeader::sizeHint() const {
    return {QHeaderView::sizeHint().width(), headerHeight};
}

void TableHeader::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(viewport());
        painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
        painter.fillRect(0, height() - 1, width(), 1, Theme::color(Role::separator));
    }
    QHeaderView::paintEvent(event);
}

void TableHeader::paintSection(QPainter* painter, const QRect& area, int section) const {
    const QString text = model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
    const auto alignment =
        model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
    const bool isSorted = isSortIndicatorShown() && sortIndicatorSection() == section;
    painter->fillRect(area.adjusted(0, 0, 0, -1), palette().color(QPalette::Base));
    painter->fillRect(area.left(), area.bottom(), area.width(), 1, Theme::color(Role::separator));
    painter->setFont(Theme::font(Theme::TextStyle::caption, isSorted ? QFont::DemiBold : QFont::Medium));
    painter->setPen(Theme::color(isSorted ? Role::primaryText : Role::secondaryText));
    const double width = QFontMetricsF(painter->font()).horizontalAdvance(text);
    const double room = isSorted ? chevronSize + 2 : 0;
    // In a narrow column the padding gives way to the text.
    const double inset = std::clamp((area.width() - width - room) / 2, 2.0, double(padding));
    QRectF line = QRectF(area).adjusted(inset, 0, -inset, 0);
    if (alignment & Qt::AlignRight)
        line.setLeft(std::max(line.left(), line.right() - width - room - 1));
    else if (alignment & Qt::AlignHCenter)
        line.setLeft(std::max(line.left(), line.center().x() - (width + room) / 2));
    Painting::drawElided(*painter, line.adjusted(0, 0, 1 - room, 0), Qt::ElideRight, text);
    if (isSorted)
        drawChevron(*painter, QRectF(std::min(line.left() + width + 2, line.right() - chevronSize),
                                     area.top(), chevronSize, area.height()));
}

/// Down for the largest first, up for the smallest.
void TableHeader::drawChevron(QPainter& painter, const QRectF& area) const {
    painter.save();
    if (sortIndicatorOrder() == Qt::AscendingOrder) {
        painter.translate(area.center());
        painter.rotate(180);
        painter.translate(-area.center());
    }
    Symbols::draw(painter, QStringLiteral("chevron.down"), Theme::color(Role::primaryText), area,
                  chevronSize);
    painter.restore();
}
