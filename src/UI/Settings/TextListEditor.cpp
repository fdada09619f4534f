#include "UI/Settings/TextListEditor.h"

#include "Core/Formatters.h"
#include "UI/Kit/FilePanel.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/TextLabel.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>

using Theme::TextStyle;

class TextListEditor::Row : public QWidget {
public:
    explicit Row(TextListEditor& editor)
        : m_label(new TextLabel(TextStyle::body))
        , m_remove(new IconButton(QStringLiteral("trash"), {})) {
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        row->addWidget(m_label, 1);
        row->addWidget(m_remove);
        connect(m_remove, &IconButton::clicked, &editor, [this, &editor] { editor.remove(m_text); });
    }

    void set(const QString& text) {
        m_text = text;
        const QString shown = Formatters::visible(text);
        m_label->setPlainText(shown);
        m_label->setToolTip(Formatters::toolTip(shown));
        m_remove->setToolTip(Formatters::toolTip(TextListEditor::tr("Remove %1").arg(shown)));
        m_remove->setAccessibleName(TextListEditor::tr("Remove %1").arg(shown));
    }

private:
    QString m_text;
    TextLabel* m_label;
    IconButton* m_remove;
};

TextListEditor::TextListEditor(const QString& name, const QString& emptyText, const QString& prompt,
                               QWidget* parent)
    : QWidget(parent)
    , m_list(new QVBoxLayout)
    , m_empty((new TextLabel(TextStyle::body))->secondary())
    , m_rows([this] {
        auto* row = new Row(*this);
        m_list->addWidget(row);
        return row;
    }) {
    setAccessibleName(name);
    m_empty->setPlainText(emptyText);
    m_list->setSpacing(Theme::textGap);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::rowSpacing);
    column->addWidget(m_empty);
    column->addLayout(m_list);
    column->addLayout(makeTools(prompt));
}

QLayout* TextListEditor::makeTools(const QString& prompt) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    if (!prompt.isEmpty()) {
        m_field = new QLineEdit;
        m_field->setPlaceholderText(prompt);
        m_field->setAccessibleName(prompt);
        auto* add = new PushButton(tr("Add"));
        connect(m_field, &QLineEdit::returnPressed, this, &TextListEditor::addTyped);
        connect(add, &QPushButton::clicked, this, &TextListEditor::addTyped);
        row->addWidget(m_field, 1);
        row->addWidget(add);
    } else {
        row->addStretch();
    }
    auto* choose = new PushButton(tr("Choose Folder…"));
    connect(choose, &QPushButton::clicked, this, &TextListEditor::chooseFolder);
    row->addWidget(choose);
    return row;
}

void TextListEditor::set(const QStringList& texts) {
    m_texts = texts;
    m_empty->setVisible(texts.isEmpty());
    m_rows.show(texts.size(), [&texts](Row& row, qsizetype i) { row.set(texts[i]); });
}

void TextListEditor::add(const QString& text) {
    if (text.isEmpty() || m_texts.contains(text))
        return;
    set(m_texts + QStringList(text));
    Q_EMIT changed(m_texts);
}

void TextListEditor::addTyped() {
    QString text = m_field->text().trimmed();
    if (text.startsWith(QStringLiteral("~/")))
        text = QDir::homePath() + text.mid(1);
    add(text);
    m_field->clear();
}

void TextListEditor::chooseFolder() {
    FilePanel::open(this, {.title = tr("Choose Folder"), .startFolder = QDir::homePath()},
                    [this](const QString& folder) { add(folder); });
}

void TextListEditor::remove(const QString& text) {
    QStringList rest = m_texts;
    rest.removeAll(text);
    set(rest);
    Q_EMIT changed(m_texts);
}
