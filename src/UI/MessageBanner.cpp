#include "UI/MessageBanner.h"

#include "Core/Alerts/Alert.h"
#include "Core/Observable.h"
#include "UI/BannerButtons.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/Pressed.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Style/MessageSeverity.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Theme.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QPainter>

using Theme::TextStyle;

namespace {

constexpr Theme::Length symbolFrame{22};
constexpr int itemSpacing = 12;
constexpr QMargins bannerPadding(14, 10, 14, 10);
/// Aligns the title's first line with the middle of the symbol.
constexpr Theme::Length titleDrop{2};
constexpr int maxTitleLines = 2;
constexpr int maxBodyLines = 3;
/// No more can be seen, and laying out a megabyte takes long.
constexpr qsizetype maxTextLength = 2000;

QString shortened(const QString& text) {
    return text.size() > maxTextLength ? text.left(maxTextLength) + u'…' : text;
}

/// Returns nothing unless the message has a visible caption and a link that may be opened.
std::optional<QUrl> actionOf(const Message& message) {
    const bool hasCaption = !message.actionLabel.value_or(QString()).trimmed().isEmpty();
    return hasCaption ? message.actionLink() : std::nullopt;
}

} // namespace

MessageBanner::MessageBanner(MessageCenter& center, OpenLink open, QWidget* parent)
    : QWidget(parent)
    , m_center(center)
    , m_open(std::move(open))
    , m_symbol(new SymbolView(Theme::iconSize, symbolFrame))
    , m_title(new ClampedLabel(maxTitleLines, TextStyle::headline))
    , m_body(new ClampedLabel(maxBodyLines, TextStyle::callout))
    , m_action(new ActionCapsule) {
    Theme::fixHeight(m_symbol, symbolFrame);
    m_body->secondary();
    auto* dismiss = new DismissButton;
    auto* texts = new QVBoxLayout;
    texts->setContentsMargins(0, titleDrop, 0, 0);
    texts->setSpacing(Theme::textGap);
    texts->addWidget(m_title);
    texts->addWidget(m_body);
    texts->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(bannerPadding);
    row->setSpacing(itemSpacing);
    row->addWidget(m_symbol, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    row->addWidget(m_action, 0, Qt::AlignTop);
    row->addWidget(dismiss, 0, Qt::AlignTop);

    actOnPressed(m_action, m_message, [this](const Message& message) {
        if (const auto link = actionOf(message))
            m_open(*link);
    });
    actOnPressed(dismiss, m_message, [this](const Message& message) {
        m_center.dismiss(message);
        refresh();
    });
    observe(&m_center, this, [this] { refresh(); });
    // Without a parent yet, setVisible() would open a window.
    if (m_center.currentMessage())
        set(*m_center.currentMessage());
    else
        hide();
}

void MessageBanner::openInDesktop(const QUrl& link) {
    QDesktopServices::openUrl(link);
}

void MessageBanner::refresh() {
    const auto& current = m_center.currentMessage();
    if (current && *current != m_message)
        set(*current);
    setVisible(current.has_value());
}

void MessageBanner::set(const MessageCenter::Message& message) {
    m_message = message;
    m_symbol->set(MessageSeverity::symbol(message.severity), MessageSeverity::role(message.severity));
    m_title->setPlainText(shortened(message.title));
    m_body->setPlainText(shortened(message.body));
    m_body->setVisible(!message.body.isEmpty());
    const auto link = actionOf(message);
    if (link)
        m_action->set(shortened(*message.actionLabel), *link, message.severity);
    m_action->setVisible(link.has_value());
    setAccessibleName(QStringLiteral("%1. %2").arg(m_title->text(), m_body->text()));
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
    update();
}

void MessageBanner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme::Role role = MessageSeverity::role(m_message.severity);
    painter.fillRect(rect(), Theme::color(Theme::Role::cardFill));
    painter.fillRect(rect(), Theme::color(role, 0.08));
    painter.fillRect(QRect(0, height() - 1, width(), 1), Theme::color(role, 0.25));
    if (role == Theme::Role::lime && !Theme::isDark()) // bright on white: its symbol needs a ground
        Painting::drawCard(painter, m_symbol->geometry().adjusted(-2, -2, 2, 2), Theme::controlRadius,
                           Theme::color(Theme::Role::primaryText));
}
