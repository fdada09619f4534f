#include "UI/Kit/Stepper.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

using Theme::Role;

namespace {

constexpr Theme::Length buttonWidth{28};
constexpr Theme::Length stepSymbolSize{12};
constexpr double disabledOpacity = 0.35;

/// One half of the stepper, which draws the ground of both.
class Half : public QAbstractButton {
public:
    explicit Half(QString symbol)
        : m_symbol(std::move(symbol)) {
        Theme::fixSize(this, buttonWidth, Theme::controlHeight);
        setFocusPolicy(Qt::NoFocus);
        setAutoRepeat(true);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        Painting::drawFeedback(painter, *this, Theme::controlRadius, 0.9, 1.6);
        Symbols::draw(painter, m_symbol, Theme::color(Role::primaryText, isEnabled() ? 1 : disabledOpacity),
                      rect(), stepSymbolSize);
    }

private:
    QString m_symbol;
};

} // namespace

Stepper::Stepper(const Range& range, QWidget* parent)
    : QWidget(parent)
    , m_range(range)
    , m_value(range.from) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    m_less = addButton(QStringLiteral("minus"), -range.step);
    m_more = addButton(QStringLiteral("plus"), range.step);
    enableButtons();
}

QAbstractButton* Stepper::addButton(const QString& symbol, double by) {
    auto* button = new Half(symbol);
    layout()->addWidget(button);
    connect(button, &QAbstractButton::clicked, this, [this, by] { stepBy(by); });
    return button;
}

void Stepper::setName(const QString& name) {
    setAccessibleName(name);
    m_less->setAccessibleName(tr("Less: %1").arg(name));
    m_more->setAccessibleName(tr("More: %1").arg(name));
}

void Stepper::setValue(double value) {
    m_value = value;
    enableButtons();
}

void Stepper::stepBy(double amount) {
    const double next = m_value + amount;
    if (m_range.wraps && next > m_range.to)
        change(m_range.from);
    else if (m_range.wraps && next < m_range.from)
        change(m_range.to);
    else
        change(next);
}

void Stepper::change(double value) {
    const double next = std::clamp(value, m_range.from, m_range.to);
    if (next == m_value)
        return;
    setValue(next);
    QAccessibleValueChangeEvent changed(this, next);
    QAccessible::updateAccessibility(&changed);
    Q_EMIT stepped(next);
}

void Stepper::enableButtons() {
    m_less->setEnabled(m_range.wraps || m_value != m_range.from);
    m_more->setEnabled(m_range.wraps || m_value != m_range.to);
}

QSize Stepper::sizeHint() const {
    return {2 * buttonWidth + 1, Theme::controlHeight};
}

void Stepper::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        stepBy(m_range.step);
        break;
    case Qt::Key_Down:
    case Qt::Key_Left:
        stepBy(-m_range.step);
        break;
    case Qt::Key_Home:
        change(m_range.from);
        break;
    case Qt::Key_End:
        change(m_range.to);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void Stepper::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double opacity = isEnabled() ? 1 : 0.5;
    Painting::drawCard(painter, rect(), Theme::controlRadius, Theme::color(Role::hoverFill, opacity),
                       Theme::color(Role::controlBorder, opacity));
    painter.fillRect(buttonWidth, 6, 1, height() - 12, Theme::color(Role::controlBorder, opacity));
    if (hasFocus())
        Painting::drawFocusRing(painter, rect(), Theme::controlRadius);
}
