#pragma once

#include "UI/Kit/Card.h"

class QVBoxLayout;
class TextLabel;

/// The frame that the cards of the Optimize section share: symbol, title and subtitle over the content.
class OptimizeCard : public Card {
    Q_OBJECT

public:
    OptimizeCard(const QString& title, const QString& subtitle, const QString& symbol, Theme::Role tint,
                 QWidget* parent = nullptr);

    void setSubtitle(const QString& subtitle);

protected:
    QVBoxLayout* content() const { return m_content; }
    /// Appends a line of small secondary text to the content.
    TextLabel* addLine(const QString& text);

private:
    TextLabel* m_subtitle;
    QVBoxLayout* m_content;
};
