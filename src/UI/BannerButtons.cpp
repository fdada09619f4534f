#include "UI/BannerButtons.h"

#include "Core/Formatters.h"
#include "UI/Style/MessageSeverity.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"
#include "UI/Style/Theme.h"

#include <QPainter>

#include <algorithm>

using Theme::Role;

namespace {

constexpr int capsulePadding = 12;
constexpr Theme::Length maxCapsuleWidth{240};
constexpr Theme::Length dismissSide{20}; // of the circle
constexpr Theme::Length crossSize{18};   // of which the cross fills half

} // namespace

ActionCapsule::ActionCapsule(QWidget* parent)
    : QAbstractButton(parent) {
    Theme::useFont(this, Theme::TextStyle::callout, QFont::DemiBold);
    Theme::fixHeight(this, Theme::controlHeight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
}

void ActionCapsule::set(const QString& caption, const QUrl& link, Message::Severity severity) {
    m_caption = Formatters::visible(caption);
    m_severity = severity;
    setAccessibleName(m_caption);
    // The address in plain ASCII has neither look-alike letters nor markup.
    setToolTip(link.toString(QUrl::FullyEncoded));
    updateGeometry();
    update();
}

QSize ActionCapsule::sizeHint() const {
    const int wanted = fontMetrics().horizontalAdvance(m_caption) + 2 * capsulePadding;
    return {std::min<int>(wanted, maxCapsuleWidth), height()};
}

void ActionCapsule::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const double radius = height() / 2.0;
    Painting::drawCard(painter, rect(), radius, MessageSeverity::buttonFill(m_severity),
                       MessageSeverity::buttonOutline(m_severity));
    Painting::drawFeedback(painter, *this, radius, 1, 2);
    painter.setFont(font());
    painter.setPen(MessageSeverity::actionLabelColor(m_severity));
    Painting::drawElided(painter, QRectF(rect()).adjusted(capsulePadding, 0, -capsulePadding + 1, 0),
                         Qt::ElideRight, m_caption);
}

DismissButton::DismissButton(QWidget* parent)
    : QAbstractButton(parent) {
    setToolTip(tr("Dismiss"));
    setAccessibleName(toolTip());
    Theme::fixSize(this, Theme::controlHeight, Theme::controlHeight);
    setFocusPolicy(Qt::TabFocus);
}

void DismissButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRectF circle(0, 0, dismissSide, dismissSide);
    circle.moveCenter(QRectF(rect()).center());
    if (underMouse() || isDown())
        Painting::drawCard(painter, circle, circle.height() / 2,
                           Theme::color(Role::secondaryText, isDown() ? 0.28 : 0.18));
    Symbols::draw(painter, QStringLiteral("xmark"), Theme::color(Role::secondaryText), rect(), crossSize);
    if (hasFocus())
        Painting::drawFocusRing(painter, rect(), height() / 2.0);
}
