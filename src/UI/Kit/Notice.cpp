#include "UI/Kit/Notice.h"

#include "UI/Kit/Card.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Style/Margins.h"
#include "UI/Style/Painting.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QPainter>

using Theme::Role;

namespace {

constexpr int maxLines = 2;

} // namespace

Notice::Notice(const QString& symbol, std::chrono::milliseconds lifetime, QWidget* parent)
    : QWidget(parent)
    , m_text(new ClampedLabel(maxLines, Theme::TextStyle::callout))
    , m_failure((new ClampedLabel(maxLines, Theme::TextStyle::callout))->tinted(Role::red)) {
    auto* icon = new SymbolView(Theme::iconSize, Theme::iconColumn);
    icon->set(symbol, Role::green);
    auto* dismiss = new PushButton(tr("Dismiss"), PushButton::Look::borderless);
    connect(dismiss, &QPushButton::clicked, this, &QWidget::hide);

    auto* card = new Card(this, Role::green);
    auto* row = new QHBoxLayout(card);
    row->setContentsMargins(mirrored({Theme::cardPadding, 4, 4, 4}));
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(icon);
    row->addWidget(m_text, 1);
    row->addWidget(m_failure, 1);
    row->addWidget(dismiss);
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(card);

    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(lifetime);
    connect(&m_timer, &QTimer::timeout, this, &Notice::expire);
    hide();
}

/// Fills the background, as the card is translucent and a notice may cover other widgets.
void Notice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(Role::windowFill));
}

void Notice::show(const QString& text, const QString& failure) {
    m_text->setPlainText(text);
    m_failure->setPlainText(failure);
    m_failure->setVisible(!failure.isEmpty());
    setAccessibleName(failure.isEmpty() ? m_text->text()
                                        : QStringLiteral("%1. %2").arg(m_text->text(), m_failure->text()));
    setVisible(true);
    m_isExpired = false;
    if (m_timer.interval() > 0)
        m_timer.start();
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

void Notice::expire() {
    if (isAncestorOf(QApplication::focusWidget())) {
        m_timer.start();
        return;
    }
    m_isExpired = underMouse();
    if (!m_isExpired)
        hide();
}

void Notice::leaveEvent(QEvent* event) {
    if (m_isExpired)
        hide();
    QWidget::leaveEvent(event);
}
