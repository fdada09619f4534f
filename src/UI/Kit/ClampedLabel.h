#pragma once

#include "UI/Kit/TextLabel.h"

/// A text of a limited number of lines. A tool tip shows the whole of a text that does not fit.
class ClampedLabel : public TextLabel {
    Q_OBJECT

public:
    ClampedLabel(int maxLines, Theme::TextStyle style, std::optional<QFont::Weight> weight = std::nullopt,
                 QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

    /// Returns the text of each line at that width.
    QStringList lines(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    int m_maxLines;
};
