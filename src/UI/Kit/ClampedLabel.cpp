#include "UI/Kit/ClampedLabel.h"

#include "Core/Formatters.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr Theme::Length comfortableWidth{320};

} // namespace

ClampedLabel::ClampedLabel(int maxLines, Theme::TextStyle style, std::optional<QFont::Weight> weight,
                           QWidget* parent)
    : TextLabel(style, weight, parent)
    , m_maxLines(maxLines) {
    setWordWrap(true); // or a label forgets with each text that its height depends on its width
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QStringList ClampedLabel::lines(int width) const {
    QTextLayout layout(text(), font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList result;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width, 1));
        if (result.size() + 1 == m_maxLines) {
            result.append(fontMetrics().elidedText(text().mid(line.textStart()), Qt::ElideRight, width));
            break;
        }
        result.append(text().mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return result;
}

QSize ClampedLabel::sizeHint() const {
    return {comfortableWidth, heightForWidth(comfortableWidth)};
}

QSize ClampedLabel::minimumSizeHint() const {
    return {0, fontMetrics().lineSpacing()};
}

int ClampedLabel::heightForWidth(int width) const {
    return static_cast<int>(std::max<qsizetype>(lines(width).size(), 1)) * fontMetrics().lineSpacing();
}

void ClampedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    int baseline = fontMetrics().ascent();
    for (const QString& line : lines(width())) {
        painter.setLayoutDirection(line.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter.drawText(isRightToLeft() ? width() - fontMetrics().horizontalAdvance(line) : 0, baseline,
                         line);
        baseline += fontMetrics().lineSpacing();
    }
}

bool ClampedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return TextLabel::event(event);
    const QStringList shown = lines(width());
    const bool isCut = !shown.isEmpty() && !text().trimmed().endsWith(shown.last());
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       isCut ? Formatters::toolTip(text()) : QString(), this);
    return true;
}
