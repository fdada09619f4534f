#include "UI/Sessions/SessionResultView.h"

#include "Core/Formatters.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Overview/OutcomeList.h"
#include "UI/Overview/ReturnTexts.h"
#include "UI/Style/Margins.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>

using Theme::Role;
using Theme::TextStyle;

SessionResultView::SessionResultView(const SessionEndResult& result, QWidget* parent)
    : Card(parent, Role::green) {
    if (result.endedCount() < result.records.size())
        setTint(Role::orange);
    auto* promised = (new TextLabel(TextStyle::caption))->secondary()->wrapped();
    promised->setPlainText(ReturnTexts::outcome(result.promised, result.freedBytes, result.freedSwapBytes));
    auto* outcomes = new OutcomeList;
    QList<OutcomeList::Line> lines;
    for (const SessionEndResult::Record& record : result.records)
        lines.append({record.pid, record.name, record.outcome});
    outcomes->set(lines);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(mirrored({Theme::cardPadding, 8, 8, 12}));
    column->setSpacing(4);
    column->addLayout(makeHead(result));
    auto* inside = new QVBoxLayout;
    inside->setContentsMargins(mirrored({0, 0, Theme::cardPadding - 8, 0}));
    inside->setSpacing(4);
    inside->addWidget(promised);
    inside->addWidget(outcomes);
    if (!result.resumeCommand.isEmpty())
        inside->addLayout(makeResume(result.resumeCommand));
    column->addLayout(inside);
}

QLayout* SessionResultView::makeHead(const SessionEndResult& result) {
    const bool isComplete = result.endedCount() == result.records.size();
    auto* symbol = new SymbolView(Theme::iconSize, Theme::iconColumn);
    symbol->set(isComplete ? QStringLiteral("checkmark.seal.fill")
                           : QStringLiteral("exclamationmark.triangle.fill"),
                isComplete ? Role::green : Role::orange);
    auto* text = new ClampedLabel(1, TextStyle::body, QFont::DemiBold);
    text->setPlainText(tr("%1: ended %2 of %3, freed ~%4")
                           .arg(result.title, QString::number(result.endedCount()),
                                QString::number(result.records.size()),
                                Formatters::bytes(result.freedBytes)));
    auto* dismiss = new IconButton(QStringLiteral("xmark"), tr("Dismiss"));
    connect(dismiss, &IconButton::clicked, this, &SessionResultView::dismissed);
    auto* head = new QHBoxLayout;
    head->setSpacing(Theme::rowSpacing);
    head->addWidget(symbol);
    head->addWidget(text, 1);
    head->addWidget(dismiss);
    return head;
}

QLayout* SessionResultView::makeResume(const QString& command) {
    auto* text = new ClampedLabel(2, TextStyle::caption);
    text->setPlainText(tr("Take the conversation up again: %1").arg(command));
    auto* copy = new PushButton(tr("Copy"), PushButton::Look::normal, QStringLiteral("doc.on.doc"));
    copy->setSmall();
    copy->setAccessibleName(tr("Copy command"));
    connect(copy, &QPushButton::clicked, this, [command] { QGuiApplication::clipboard()->setText(command); });
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(text, 1, Qt::AlignVCenter);
    row->addWidget(copy);
    return row;
}
