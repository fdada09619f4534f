#pragma once

#include "UI/Kit/TextLabel.h"

/// A text of at most so many lines, as wide as there is room. The last one ends in an ellipsis where the text
/// goes on; the whole of it is then the tool tip.
class ClampedLabel : public TextLabel {
    Q_OBJECT

public:
    ClampedLabel(int maxLines, Theme::TextStyle style, std::optional<QFont::Weight> weight = std::nullopt,
                 QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

    /// What stands on each line at that width.
    QStringList lines(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    int m_mostLines;
};
