#include "UI/Kit/EmptyState.h"

#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"

#include <QVBoxLayout>

namespace {

constexpr Theme::Length minEmptyHeight{120};
constexpr Theme::Length emptySymbolSize{30};

} // namespace

EmptyState::EmptyState(const QString& symbol, const QString& headline, const QString& text, QWidget* parent)
    : QWidget(parent) {
    setMinimumHeight(minEmptyHeight);
    auto* icon = new SymbolView(emptySymbolSize, emptySymbolSize);
    icon->set(symbol, Theme::Role::secondaryText);
    auto* title = new TextLabel(Theme::TextStyle::headline);
    title->setPlainText(headline);
    if (headline.isEmpty())
        title->hide();
    auto* detail = (new TextLabel(Theme::TextStyle::callout))->secondary()->wrapped();
    detail->setPlainText(text);
    detail->setAlignment(Qt::AlignCenter);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Theme::rowSpacing);
    column->addStretch();
    column->addWidget(icon, 0, Qt::AlignCenter);
    column->addWidget(title, 0, Qt::AlignCenter);
    column->addWidget(detail);
    column->addStretch();
}
