#pragma once

#include "UI/Style/Theme.h"

#include <QWidget>

/// One line of a small panel: a symbol, a text, and a figure at the trailing end.
class PanelRow : public QWidget {
    Q_OBJECT

public:
    struct Content {
        QString symbol;
        Theme::Role tint = Theme::Role::secondaryText;
        QString text;
        Theme::Role textRole = Theme::Role::primaryText;
        QString figure;
        QString toolTip = {};

        bool operator==(const Content&) const = default;
    };

    /// The symbol is centred in a column of `symbolWidth`.
    PanelRow(Theme::TextStyle style, Theme::Length symbolWidth, QWidget* parent = nullptr);

    void set(const Content& content);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Theme::TextStyle m_style;
    Theme::Length m_symbolWidth;
    Content m_content;
};
