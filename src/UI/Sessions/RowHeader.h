#pragma once

#include "UI/Style/Theme.h"

#include <QAbstractButton>

class QPainter;

/// The line of a row that opens and closes the tree below it: a click, Return, Space or the arrow keys. It
/// draws the chevron; a subclass draws the rest.
class RowHeader : public QAbstractButton {
    Q_OBJECT

public:
    static constexpr Theme::Length height{50};
    static constexpr Theme::Length chevronColumn{24}; ///< with the gap beside it
    static constexpr Theme::Length symbolColumn{22};  ///< with the gap beside it
    static constexpr Theme::Length memoryWidth{92};

    explicit RowHeader(QWidget* parent = nullptr);

    bool isExpanded() const { return m_expanded; }
    void setExpanded(bool expanded);

    QSize sizeHint() const override { return {320, height}; }

Q_SIGNALS:
    /// Emitted when the user asks to end what the row shows.
    void endRequested();
    /// Emitted when the user moves to the next row (1) or the one before (-1).
    void stepRequested(int rows);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Draws the light, the focus ring and the chevron. Returns what is left of the line.
    QRectF paintGround(QPainter& painter) const;
    /// Return the place of a body text and of a caption below it, together in the middle of `cell`.
    static QRectF upperLine(const QRectF& cell);
    static QRectF lowerLine(const QRectF& cell);
    /// Sets the description, which says whether the row is open.
    virtual void describeState() = 0;

private:
    bool m_expanded = false;
};
