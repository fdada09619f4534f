#include "UI/Inspector/FieldList.h"

#include "UI/Kit/TextLabel.h"

#include <QGridLayout>

using Theme::TextStyle;

FieldList::FieldList(QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this)) {
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(Theme::rowSpacing);
    m_grid->setVerticalSpacing(Theme::rowSpacing / 2);
    m_grid->setColumnStretch(1, 1);
}

int FieldList::add(const QString& name) {
    const auto line = static_cast<int>(m_lines.size());
    auto* label = (new TextLabel(TextStyle::callout))->secondary();
    label->setPlainText(name);
    auto* text = (new TextLabel(TextStyle::callout))->wrapped();
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long path does not widen the panel
    m_grid->addWidget(label, line, 0, Qt::AlignTop | Qt::AlignLeft);
    m_grid->addWidget(text, line, 1);
    m_lines.append(Line{label, text});
    set(line, {});
    return line;
}

void FieldList::set(int line, const QString& text) {
    const Line& fields = m_lines[line];
    fields.name->setVisible(!text.isEmpty());
    fields.text->setVisible(!text.isEmpty());
    fields.text->setPlainText(text);
    fields.text->setAccessibleName(QStringLiteral("%1: %2").arg(fields.name->text(), text));
}
