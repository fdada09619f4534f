#pragma once

#include "UI/Style/Theme.h"

#include <QAbstractButton>

/// A borderless button with a symbol; the help text is its tool tip and its accessible name.
class IconButton : public QAbstractButton {
    Q_OBJECT

public:
    IconButton(QString symbol, const QString& help, Theme::Role tint = Theme::Role::secondaryText,
               QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_symbol;
    Theme::Role m_tint;
};

/// A borderless button with a short text in the accent colour.
class TextButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit TextButton(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
