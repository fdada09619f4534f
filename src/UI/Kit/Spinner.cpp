#include "UI/Kit/Spinner.h"

#include <QPainter>

namespace {

constexpr int milliseconds = 60;
constexpr int stepDegrees = 24;
constexpr int arcDegrees = 260;
constexpr double lineWidth = 2;

} // namespace

Spinner::Spinner(QWidget* parent)
    : QWidget(parent) {
    Theme::fixSize(this, side, side);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("In progress"));
}

void Spinner::showEvent(QShowEvent*) {
    if (!Theme::reducesMotion())
        m_timer.start(milliseconds, this);
}

void Spinner::hideEvent(QHideEvent*) {
    m_timer.stop();
}

void Spinner::timerEvent(QTimerEvent*) {
    m_degrees = (m_degrees + stepDegrees) % 360;
    update();
}

void Spinner::paintEvent(QPaintEvent*) {
    constexpr int qtUnits = 16; // of a degree
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::color(Theme::Role::secondaryText), lineWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), -m_degrees * qtUnits,
                    arcDegrees * qtUnits);
}
