#pragma once

#include "UI/Style/Theme.h"

#include <QLabel>

/// Plain text in one of the theme's styles; never interpreted as markup, control characters made visible.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    explicit TextLabel(Theme::TextStyle style, std::optional<QFont::Weight> weight = std::nullopt,
                       QWidget* parent = nullptr);

    /// Sets the colour of secondary text.
    TextLabel* secondary();
    /// Sets the role's colour, in the current scheme.
    TextLabel* tinted(Theme::Role role);
    /// Wraps the text into lines.
    TextLabel* wrapped();
    void setPlainText(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    std::optional<Theme::Role> m_tint;
};
