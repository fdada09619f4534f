#include "UI/Kit/SearchField.h"

#include "UI/Kit/IconButton.h"
#include "UI/Kit/Symbols.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

using Theme::Role;

namespace {

constexpr int leadRoom = 24;
constexpr int trailRoom = 26;
constexpr int symbolSize = 14;

} // namespace

SearchField::SearchField(const QString& prompt, QWidget* parent)
    : TextField(parent) {
    setTextMargins(leadRoom, 0, trailRoom, 0);
    setPlaceholderText(prompt);
    setAccessibleName(prompt);

    auto* button = new IconButton(QStringLiteral("xmark.circle.fill"), QStringLiteral("Clear search"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::ArrowCursor);
    button->hide();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 1, 0);
    row->addStretch();
    row->addWidget(button);
    connect(button, &IconButton::clicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, button,
            [button](const QString& text) { button->setVisible(!text.isEmpty()); });
}

void SearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        TextField::keyPressEvent(event);
}

void SearchField::drawLead(QPainter& painter) {
    Symbols::draw(painter, QStringLiteral("magnifyingglass"), Theme::color(Role::secondaryText),
                  QRectF(6, 0, leadRoom - 6, height()), symbolSize);
}
