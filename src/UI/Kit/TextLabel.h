#pragma once

#include "UI/Style/Theme.h"

#include <QLabel>

/// Plain text in one of the theme's styles; never interpreted as markup, control characters made visible.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    explicit TextLabel(Theme::TextStyle style, std::optional<QFont::Weight> weight = std::nullopt,
                       QWidget* parent = nullptr);

    /// In the colour of secondary text.
    TextLabel* secondary();
    /// In the role's colour of whichever scheme is on.
    TextLabel* tinted(Theme::Role role);
    /// Breaks the text into lines where it is wider than the label.
    TextLabel* wrapped();
    void setPlainText(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    std::optional<Theme::Role> m_tint;
};
