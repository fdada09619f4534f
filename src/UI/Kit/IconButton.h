#pragma once

#include "UI/Style/Theme.h"

#include <QToolButton>

/// A borderless button with a symbol; the help text is its tool tip and its accessible name.
class IconButton : public QToolButton {
    Q_OBJECT

public:
    IconButton(const QString& symbol, const QString& help, Theme::Role tint = Theme::Role::secondaryText,
               QWidget* parent = nullptr);

    void setHelp(const QString& help);
    /// Shows itself only while the pointer or the keyboard is in its row, which is its parent.
    void setQuiet();

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void initStyleOption(QStyleOptionToolButton* option) const override;
    void changeEvent(QEvent* event) override;

private:
    Theme::Role m_tint;
    bool m_isQuiet = false;
};

/// A borderless button with a short text in the accent colour.
class TextButton : public QToolButton {
    Q_OBJECT

public:
    explicit TextButton(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;
};
