#include "UI/Kit/StepperRow.h"

#include "Core/Formatters.h"
#include "UI/Style/Painting.h"

#include <QHBoxLayout>
#include <QPainter>

#include <cmath>

using Theme::Role;

namespace {

constexpr int stepperGap = 12;

} // namespace

StepperRow::StepperRow(Look look, const Stepper::Range& range, QWidget* parent)
    : QWidget(parent)
    , m_look(std::move(look))
    , m_stepper(new Stepper(range)) {
    Theme::useFont(this, Theme::TextStyle::body);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(m_stepper);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(m_stepper);
    showValue();
    connect(m_stepper, &Stepper::stepped, this, [this](double value) {
        showValue();
        Q_EMIT stepped(value);
    });
}

void StepperRow::setValue(double value) {
    m_stepper->setValue(value);
    showValue();
}

QString StepperRow::text(const QString& pattern) const {
    if (m_look.number)
        return QString(pattern).replace(QStringLiteral("%1"), m_look.number(value()));
    const double number = m_look.decimals == 0 ? std::trunc(value()) + 0.0 : value(); // + 0: no "-0"
    return QString(pattern).replace(QStringLiteral("%1"), Formatters::fixed(number, m_look.decimals));
}

void StepperRow::showValue() {
    const QString name = QString(text(m_look.label) + u' ' + text(m_look.value)).trimmed();
    setAccessibleName(name);
    m_stepper->setName(name);
    update();
}

QSize StepperRow::sizeHint() const {
    return {240, Theme::controlHeight};
}

void StepperRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const double opacity = isEnabled() ? 1 : Theme::disabledOpacity;
    QRectF line = rect();
    line.setRight(width() - m_stepper->width() - stepperGap);
    painter.setFont(font());
    painter.setPen(Theme::color(Role::primaryText, opacity));
    const QString label = text(m_look.label);
    Painting::drawTabular(painter, line, Qt::AlignLeft, label);

    line.setLeft(line.left() + Painting::tabularWidth(font(), label) + stepperGap);
    painter.setPen(Theme::color(Role::secondaryText, opacity));
    const QString value = text(m_look.value);
    if (Painting::tabularWidth(font(), value) <= line.width())
        Painting::drawTabular(painter, line, Qt::AlignRight, value);
    else // a stored number can have any length
        Painting::drawElided(painter, line, Qt::ElideRight, value);
}
