#include "UI/Kit/FormSection.h"

#include "UI/Kit/Card.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Style/Margins.h"

#include <QHBoxLayout>

using Theme::TextStyle;

namespace {

constexpr int formRowPadding = 8;
constexpr Theme::Length minRowHeight{24};

} // namespace

FormSection::FormSection(const QString& title, QWidget* parent)
    : QWidget(parent) {
    auto* heading = new TextLabel(TextStyle::headline);
    heading->setPlainText(title);
    if (title.isEmpty())
        heading->hide();
    auto* card = new Card;
    m_rows = new QVBoxLayout(card);
    m_rows->setContentsMargins(0, 1, 0, 1);
    m_rows->setSpacing(0);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::rowSpacing);
    column->addWidget(heading);
    column->addWidget(card);
    setAccessibleName(title);
}

QVBoxLayout* FormSection::addCell() {
    if (m_last) {
        auto* line = new QHBoxLayout;
        line->setContentsMargins(mirrored({Theme::cardPadding, 0, 1, 0}));
        line->addWidget(new Divider);
        m_rows->addLayout(line);
    }
    m_last = new QVBoxLayout;
    m_last->setContentsMargins(Theme::cardPadding, formRowPadding, Theme::cardPadding, formRowPadding);
    m_last->setSpacing(4);
    m_rows->addLayout(m_last);
    return m_last;
}

void FormSection::addRow(QWidget* row) {
    addCell()->addWidget(row);
}

void FormSection::addRow(const QString& label, QWidget* control, QWidget* illustration) {
    auto* text = new TextLabel(TextStyle::body);
    text->setPlainText(label);
    text->setMinimumHeight(minRowHeight);
    text->setBuddy(control);
    control->setAccessibleName(label);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(text, 1);
    if (illustration)
        row->addWidget(illustration);
    row->addWidget(control);
    addCell()->addLayout(row);
}

void FormSection::addNote(QWidget* note) {
    m_last->addWidget(note);
}
