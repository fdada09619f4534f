#include "UI/Kit/Slider.h"

#include "UI/Kit/Painting.h"
#include "UI/Kit/TextLabel.h"

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using Theme::Role;

namespace {

constexpr int knobSide = 16;
constexpr int trackHeight = 4;

} // namespace

Slider::Slider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent) {
    setFixedHeight(knobSide + 4);
}

double Slider::knobCentre() const {
    const double share = double(value() - minimum()) / std::max(1, maximum() - minimum());
    return knobSide / 2.0 + share * (width() - knobSide);
}

void Slider::takeTo(double x) {
    const double share = (x - knobSide / 2.0) / std::max(1, width() - knobSide);
    setValue(minimum() + static_cast<int>(std::lround(share * (maximum() - minimum()))));
}

void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    setSliderDown(true);
    if (std::abs(event->position().x() - knobCentre()) > knobSide / 2.0)
        takeTo(event->position().x());
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        takeTo(event->position().x());
}

void Slider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

void Slider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track(1, (height() - trackHeight) / 2.0, width() - 2, trackHeight);
    const double share = (knobCentre() - track.left()) / track.width();
    Painting::drawProgress(painter, track, share, Theme::color(Role::accent, isEnabled() ? 1 : 0.4));
    const QRectF knob(knobCentre() - knobSide / 2.0, (height() - knobSide) / 2.0, knobSide, knobSide);
    Painting::drawCard(painter, knob, knobSide / 2.0, Qt::white, Theme::color(Role::gray, 0.7));
    if (hasFocus())
        Painting::drawFocusRing(painter, knob.adjusted(-2, -2, 2, 2), knobSide / 2.0 + 2);
}

LabeledSlider::LabeledSlider(QString before, QString after, Range range, double value, int width,
                             QWidget* parent)
    : QWidget(parent)
    , m_before(std::move(before))
    , m_after(std::move(after))
    , m_step(range.step)
    , m_label(new TextLabel(Theme::TextStyle::callout))
    , m_slider(new Slider) {
    setFixedWidth(width);
    m_slider->setRange(range.from / range.step, range.to / range.step);
    m_slider->setPageStep(std::max(1, (m_slider->maximum() - m_slider->minimum()) / 10));
    m_slider->setValue(static_cast<int>(std::lround(value / m_step)));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::textGap);
    column->addWidget(m_label);
    column->addWidget(m_slider);
    setFocusProxy(m_slider);
    showValue();
    connect(m_slider, &QSlider::valueChanged, this, [this] {
        showValue();
        Q_EMIT valueChanged(this->value());
    });
}

double LabeledSlider::value() const {
    return m_slider->value() * m_step;
}

void LabeledSlider::showValue() {
    m_label->setPlainText(m_before + QString::number(m_slider->value() * m_step) + m_after);
    m_slider->setAccessibleName(m_label->text());
}
