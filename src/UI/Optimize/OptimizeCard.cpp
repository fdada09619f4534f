#include "UI/Optimize/OptimizeCard.h"

#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"

#include <QHBoxLayout>

using Theme::TextStyle;

namespace {

constexpr int optimizeCardPadding = 16;
constexpr Theme::Length headerSymbol{20};

} // namespace

OptimizeCard::OptimizeCard(const QString& title, const QString& subtitle, const QString& symbol,
                           Theme::Role tint, QWidget* parent)
    : Card(parent)
    , m_subtitle((new TextLabel(TextStyle::caption))->secondary())
    , m_content(new QVBoxLayout(this)) {
    auto* icon = new SymbolView(headerSymbol, Theme::iconColumn);
    icon->set(symbol, tint);
    auto* heading = new TextLabel(TextStyle::headline);
    heading->setPlainText(title);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Theme::textGap);
    texts->addWidget(heading);
    texts->addWidget(m_subtitle);
    auto* header = new QHBoxLayout;
    header->setSpacing(Theme::rowSpacing);
    header->addWidget(icon);
    header->addLayout(texts, 1);

    m_content->setContentsMargins(optimizeCardPadding, optimizeCardPadding, optimizeCardPadding,
                                  optimizeCardPadding);
    m_content->setSpacing(12);
    m_content->addLayout(header);
    setSubtitle(subtitle);
    setAccessibleName(title);
}

void OptimizeCard::setSubtitle(const QString& subtitle) {
    m_subtitle->setPlainText(subtitle);
}

TextLabel* OptimizeCard::addLine(const QString& text) {
    auto* line = (new TextLabel(TextStyle::caption))->secondary()->wrapped();
    line->setPlainText(text);
    m_content->addWidget(line);
    return line;
}
