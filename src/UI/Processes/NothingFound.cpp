#include "UI/Processes/NothingFound.h"

#include "Core/Translations.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"

#include <QHBoxLayout>

namespace {

constexpr Theme::Length nothingSymbolSize{30};

} // namespace

NothingFound::NothingFound(QWidget* parent)
    : QWidget(parent)
    , m_title(new TextLabel(Theme::TextStyle::headline))
    , m_detail((new TextLabel(Theme::TextStyle::callout))->secondary()->wrapped())
    , m_search(new PushButton(tr("Clear the search")))
    , m_group(new PushButton(tr("Show all groups")))
    , m_size(new PushButton(tr("Show all sizes")))
    , m_all(new PushButton(tr("Clear all filters"))) {
    auto* icon = new SymbolView(nothingSymbolSize, nothingSymbolSize);
    icon->set(QStringLiteral("list.bullet.rectangle"), Theme::Role::secondaryText);
    m_detail->setAlignment(Qt::AlignCenter);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::rowSpacing);
    buttons->addStretch();
    for (PushButton* button : {m_search, m_group, m_size, m_all})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Theme::rowSpacing);
    column->addStretch();
    column->addWidget(icon, 0, Qt::AlignCenter);
    column->addWidget(m_title, 0, Qt::AlignCenter);
    column->addWidget(m_detail);
    column->addLayout(buttons);
    column->addStretch();
    connect(m_search, &PushButton::clicked, this, &NothingFound::searchLifted);
    connect(m_group, &PushButton::clicked, this, &NothingFound::groupLifted);
    connect(m_size, &PushButton::clicked, this, &NothingFound::sizeLifted);
    connect(m_all, &PushButton::clicked, this, [this] {
        Q_EMIT searchLifted();
        Q_EMIT groupLifted();
        Q_EMIT sizeLifted();
    });
}

void NothingFound::set(const ProcessQuery& query, const ProcessQuery::Hidden& hidden) {
    m_title->setPlainText(tr("No processes match"));
    QStringList sentences;
    if (hidden.bySize > 0)
        sentences.append(tr("Min RAM of %1 MB hides %n more.", nullptr, hidden.bySize).arg(query.minRSSMB));
    if (hidden.byGroup > 0 && query.groupFilter)
        sentences.append(tr("The group %1 hides %n more.", nullptr, hidden.byGroup)
                             .arg(Translations::of(*query.groupFilter)));
    if (hidden.bySearch > 0)
        sentences.append(tr("The search hides %n more.", nullptr, hidden.bySearch));
    const bool isTogether = sentences.isEmpty() && hidden.all > 0;
    if (isTogether)
        sentences.append(tr("The filters together hide %n process(es).", nullptr, hidden.all));
    m_detail->setPlainText(sentences.isEmpty() ? tr("Change the search, the group or Min RAM to see more.")
                                               : sentences.join(u' '));
    m_size->setVisible(hidden.bySize > 0);
    m_group->setVisible(hidden.byGroup > 0);
    m_search->setVisible(hidden.bySearch > 0);
    m_all->setVisible(isTogether);
}

void NothingFound::setNoProcesses(const QString& reason) {
    m_title->setPlainText(tr("No processes"));
    m_detail->setPlainText(reason);
    for (PushButton* button : {m_search, m_group, m_size, m_all})
        button->hide();
}
