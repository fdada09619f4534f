#include "UI/Kit/ConfirmDialog.h"

#include "Core/Formatters.h"
#include "UI/Kit/ClampedLabel.h"

#include <QHBoxLayout>

using Theme::TextStyle;

namespace {

constexpr int maxHeadingLines = 4;
constexpr int maxTextLines = 12;

} // namespace

ConfirmDialog::ConfirmDialog(QWidget* parent, const QString& title, const QString& text)
    : QDialog(parent)
    , m_column(new QVBoxLayout(this))
    , m_buttons(new QHBoxLayout) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(Formatters::visible(title));
    const QStringList paragraphs = text.split(QStringLiteral("\n\n"));
    setAccessibleDescription(Formatters::visible(paragraphs.join(u' ')));

    auto* heading = new ClampedLabel(maxHeadingLines, TextStyle::title3, QFont::Bold);
    heading->setPlainText(title);
    heading->setFixedWidth(textWidth);
    m_column->setContentsMargins(Theme::sheetMargins);
    m_column->setSpacing(Theme::rowSpacing);
    m_column->addWidget(heading);
    for (const QString& paragraph : paragraphs) {
        auto* label = new ClampedLabel(maxTextLines, TextStyle::body);
        label->secondary();
        label->setPlainText(paragraph);
        label->setFixedWidth(textWidth);
        m_column->addWidget(label);
    }
    m_column->addSpacing(Theme::rowSpacing);
    m_column->addLayout(m_buttons);
    m_column->setSizeConstraint(QLayout::SetFixedSize);

    auto* cancel = new PushButton(tr("Cancel"));
    cancel->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_buttons->addStretch();
    m_buttons->addWidget(cancel);
    cancel->setFocus();
}

PushButton* ConfirmDialog::addAction(const QString& text, PushButton::Look look) {
    const QString shown = fontMetrics().elidedText(Formatters::visible(text), Qt::ElideMiddle, textWidth);
    auto* button = new PushButton(QString(shown).replace(u'&', QStringLiteral("&&")), look);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    m_buttons->insertWidget(m_buttons->count() - 1, button);
    return button;
}

void ConfirmDialog::addContent(QWidget* content) {
    constexpr int below = 2; // the spacing and the buttons
    m_column->insertWidget(m_column->count() - below, content);
}
