#include "UI/Kit/SearchField.h"

#include "UI/Kit/IconButton.h"
#include "UI/Style/Margins.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

using Theme::Role;

namespace {

constexpr int leadLeft = 6;
constexpr Theme::Length leadRoom{18};
constexpr Theme::Length trailRoom{20};
constexpr Theme::Length searchSymbolSize{14};

} // namespace

SearchField::SearchField(const QString& prompt, QWidget* parent)
    : QLineEdit(parent) {
    setTextMargins(mirrored({leadRoom, 0, trailRoom, 0}));
    setPlaceholderText(prompt);
    setAccessibleName(prompt);

    auto* button = new IconButton(QStringLiteral("xmark.circle.fill"), tr("Clear search"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::ArrowCursor);
    button->hide();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(mirrored({0, 0, 1, 0}));
    row->addStretch();
    row->addWidget(button);
    connect(button, &IconButton::clicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, button,
            [button](const QString& text) { button->setVisible(!text.isEmpty()); });
}

void SearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept(); // the default button of a dialog is not meant
    else
        QLineEdit::keyPressEvent(event);
}

void SearchField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    Painting::mirror(painter, *this);
    Symbols::draw(painter, QStringLiteral("magnifyingglass"), Theme::color(Role::secondaryText),
                  QRectF(leadLeft, 0, leadRoom, height()), searchSymbolSize);
}
