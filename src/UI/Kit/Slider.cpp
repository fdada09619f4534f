#include "UI/Kit/Slider.h"

#include "UI/Kit/TextLabel.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Style.h"

#include <QMouseEvent>
#include <QStyleOption>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

Slider::Slider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent) {
    Theme::fixHeight(this, Theme::controlHeight);
}

void Slider::moveKnobTo(double x) {
    const double share = (x - Style::knobSide / 2.0) / std::max(1, width() - Style::knobSide);
    setValue(minimum() + static_cast<int>(std::lround(share * (maximum() - minimum()))));
}

void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    setSliderDown(true);
    QStyleOptionSlider option;
    initStyleOption(&option);
    const double x = Painting::mirrored(event->position(), rect(), layoutDirection()).x();
    if (std::abs(x - Style::knob(option).center().x()) > Style::knobSide / 2.0)
        moveKnobTo(x);
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        moveKnobTo(Painting::mirrored(event->position(), rect(), layoutDirection()).x());
}

void Slider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

LabeledSlider::LabeledSlider(QString text, Range range, double value, Theme::Length width, QWidget* parent)
    : QWidget(parent)
    , m_text(std::move(text))
    , m_step(range.step)
    , m_label(new TextLabel(Theme::TextStyle::callout))
    , m_slider(new Slider) {
    Theme::fixWidth(this, width);
    m_slider->setRange(range.from, range.to);
    m_slider->setSingleStep(range.step);
    m_slider->setPageStep(range.step * std::max(1, (range.to - range.from) / range.step / 10));
    setValue(value);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::textGap);
    column->addWidget(m_label);
    column->addWidget(m_slider);
    setFocusProxy(m_slider);
    showValue();
    connect(m_slider, &QSlider::valueChanged, this, [this](int moved) {
        const int from = m_slider->minimum();
        const int step = from + (moved - from + m_step / 2) / m_step * m_step;
        if (step != moved)
            return m_slider->setValue(step);
        showValue();
        Q_EMIT valueChanged(this->value());
    });
}

double LabeledSlider::value() const {
    return m_slider->value();
}

void LabeledSlider::setValue(double value) {
    m_slider->setValue(static_cast<int>(std::lround(value)));
}

void LabeledSlider::showValue() {
    m_label->setPlainText(m_text.arg(m_slider->value()));
    m_slider->setAccessibleName(m_label->text());
}
