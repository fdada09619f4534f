#pragma once

#include <QBitmap>
#include <QPainter>
#include <QWidget>

/// Cuts the corners off a window that no compositor blends with what is below it.
inline void cutCorners(QWidget& window, double radius) {
    if (window.testAttribute(Qt::WA_TranslucentBackground))
        return;
    QBitmap shape(window.size());
    shape.fill(Qt::color0);
    QPainter painter(&shape);
    painter.setBrush(Qt::color1);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(window.rect(), radius, radius);
    painter.end();
    window.setMask(shape);
}
