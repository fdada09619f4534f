#include "UI/Kit/EmptyState.h"

#include "UI/Kit/PushButton.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"

#include <QVBoxLayout>

namespace {

constexpr Theme::Length minEmptyHeight{120};
constexpr Theme::Length emptySymbolSize{30};

} // namespace

EmptyState::EmptyState(const QString& symbol, const QString& headline, const QString& text, QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_detail((new TextLabel(Theme::TextStyle::callout))->secondary()->wrapped()) {
    setMinimumHeight(minEmptyHeight);
    auto* icon = new SymbolView(emptySymbolSize, emptySymbolSize);
    icon->set(symbol, Theme::Role::secondaryText);
    auto* title = new TextLabel(Theme::TextStyle::headline);
    title->setPlainText(headline);
    if (headline.isEmpty())
        title->hide();
    m_detail->setAlignment(Qt::AlignCenter);
    setText(text);
    m_column->setSpacing(Theme::rowSpacing);
    m_column->addStretch();
    m_column->addWidget(icon, 0, Qt::AlignCenter);
    m_column->addWidget(title, 0, Qt::AlignCenter);
    m_column->addWidget(m_detail);
    m_column->addStretch();
}

void EmptyState::setText(const QString& text) {
    m_detail->setPlainText(text);
}

PushButton* EmptyState::addButton(const QString& text) {
    auto* button = new PushButton(text);
    m_column->insertWidget(m_column->count() - 1, button, 0, Qt::AlignCenter);
    return button;
}
