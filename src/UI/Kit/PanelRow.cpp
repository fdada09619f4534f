#include "UI/Kit/PanelRow.h"

#include "Core/Formatters.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int panelRowGap = 8;
constexpr int verticalPadding = 2;

} // namespace

PanelRow::PanelRow(Theme::TextStyle style, Theme::Length symbolWidth, QWidget* parent)
    : QWidget(parent)
    , m_style(style)
    , m_symbolWidth(symbolWidth) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PanelRow::set(const Content& content) {
    if (content == m_content)
        return;
    m_content = content;
    m_content.text = Formatters::visible(content.text);
    setAccessibleName(QStringLiteral("%1 %2").arg(m_content.text, m_content.figure).trimmed());
    setToolTip(Formatters::toolTip(content.toolTip));
    setAccessibleDescription(content.toolTip);
    update();
}

QSize PanelRow::sizeHint() const {
    const auto line = static_cast<int>(Painting::lineHeight(Theme::font(m_style)));
    return {Theme::scaled(120), std::max<int>(m_symbolWidth, line) + 2 * verticalPadding};
}

void PanelRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    QRectF line(rect());
    const QRectF symbol(line.left(), line.top(), m_symbolWidth, line.height());
    Symbols::draw(painter, m_content.symbol, Theme::color(m_content.tint), symbol, m_symbolWidth);
    line.setLeft(symbol.right() + panelRowGap);

    Painting::setTextStyle(painter, Theme::TextStyle::caption, Theme::Role::secondaryText);
    Painting::drawTabular(painter, line, Qt::AlignRight, m_content.figure);
    if (!m_content.figure.isEmpty())
        line.setRight(line.right() - Painting::tabularWidth(painter.font(), m_content.figure) - panelRowGap);

    Painting::setTextStyle(painter, m_style, m_content.textRole);
    Painting::drawElided(painter, line, Qt::ElideMiddle, m_content.text);
}
