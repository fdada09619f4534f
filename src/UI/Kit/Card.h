#pragma once

#include "UI/Style/Painting.h"

#include <QPainter>
#include <QWidget>

#include <optional>

/// The background of a group of widgets: the theme's card, or one in a tint.
class Card : public QWidget {
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr, std::optional<Theme::Role> tint = std::nullopt)
        : QWidget(parent)
        , m_tint(tint) {}

    void setTint(Theme::Role tint) {
        m_tint = tint;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (m_tint)
            Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(*m_tint, 0.08),
                               Theme::color(*m_tint, 0.35));
        else
            Painting::drawCard(painter, rect());
    }

private:
    std::optional<Theme::Role> m_tint;
};

/// A line across a column, one point thick.
class Divider : public QWidget {
    Q_OBJECT

public:
    explicit Divider(QWidget* parent = nullptr)
        : QWidget(parent) {
        setFixedHeight(1);
        setAutoFillBackground(true);
        setBackgroundRole(QPalette::Mid);
    }
};
