#include "UI/Overview/AlertStripView.h"

#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/Pressed.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/RowButton.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Style/Levels.h"

#include <QHBoxLayout>

using Theme::TextStyle;

namespace {

constexpr int maxTitleLines = 2;

QHBoxLayout* cardLayout(QWidget* card) {
    auto* row = new QHBoxLayout(card);
    row->setContentsMargins(Theme::cardPadding, 12, Theme::cardPadding, 12);
    row->setSpacing(Theme::rowSpacing);
    return row;
}

QWidget* makeHealthyCard() {
    auto* symbol = new SymbolView(Theme::iconSize, Theme::iconColumn);
    symbol->set(QStringLiteral("checkmark.seal.fill"), Theme::Role::green);
    auto* text = (new TextLabel(TextStyle::body))->secondary();
    text->setPlainText(AlertStripView::tr("System looks healthy."));
    auto* card = new Card;
    auto* row = cardLayout(card);
    row->addWidget(symbol);
    row->addWidget(text, 1);
    card->setAccessibleName(text->text());
    return card;
}

} // namespace

AlertCard::AlertCard(QWidget* parent)
    : Card(parent)
    , m_symbol(new SymbolView(Theme::iconSize, Theme::iconColumn))
    , m_title(new ClampedLabel(maxTitleLines, TextStyle::body, QFont::DemiBold))
    , m_detail((new TextLabel(TextStyle::caption))->secondary()->wrapped())
    , m_details(new PushButton(tr("Details")))
    , m_action(new PushButton(QString(), PushButton::Look::prominent)) {
    m_details->setSmall();
    m_action->setSmall();
    actOnPressed(m_action, m_alert, [this](const Alert& alert) { Q_EMIT actionRequested(alert); });
    actOnPressed(m_details, m_alert, [this](const Alert& alert) { Q_EMIT detailsRequested(alert.id); });
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Theme::textGap);
    texts->addWidget(m_title);
    texts->addWidget(m_detail);
    auto* row = cardLayout(this);
    row->addWidget(m_symbol, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    row->addWidget(m_details, 0, Qt::AlignVCenter);
    row->addWidget(m_action, 0, Qt::AlignVCenter);
}

void AlertCard::set(const Alert& alert, bool hasDetails) {
    setTint(Levels::alert(alert.severity));
    m_symbol->set(severitySymbol(alert.severity), Levels::alert(alert.severity));
    m_title->setPlainText(alert.title);
    m_detail->setPlainText(alert.detail);
    m_detail->setVisible(!alert.detail.isEmpty());
    m_alert = alert;
    m_details->setVisible(hasDetails);
    m_action->setText(alert.actionTarget == QStringLiteral("session") ? tr("End session…") : tr("Quit"));
    nameRowButton(m_action, m_action->text(), m_title->text());
    nameRowButton(m_details, m_details->text(), m_title->text());
    m_action->setVisible(alert.actionPid.has_value());
    setAccessibleName(QStringLiteral("%1. %2").arg(m_title->text(), m_detail->text()));
}

AlertStripView::AlertStripView(QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_healthy(makeHealthyCard())
    , m_cards([this] {
        auto* card = new AlertCard;
        connect(card, &AlertCard::actionRequested, this, &AlertStripView::actionRequested);
        connect(card, &AlertCard::detailsRequested, this, &AlertStripView::detailsRequested);
        m_column->addWidget(card);
        return card;
    }) {
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(Theme::rowSpacing);
    m_column->addWidget(m_healthy);
}

void AlertStripView::set(const QList<Alert>& alerts,
                         const std::function<bool(const QString& alertId)>& hasDetails) {
    m_healthy->setVisible(alerts.isEmpty());
    m_cards.show(alerts.size(),
                 [&](AlertCard& card, qsizetype i) { card.set(alerts[i], hasDetails(alerts[i].id)); });
}
