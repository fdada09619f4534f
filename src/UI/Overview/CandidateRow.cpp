#include "UI/Overview/CandidateRow.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Kit/Pressed.h"
#include "UI/Style/Painting.h"

#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length candidateRowHeight{42};
constexpr Theme::Length boxSide{16};
constexpr Theme::Length candidateBytesWidth{72};
constexpr Theme::Length idleWidth{52};
constexpr double tickedOpacity = 0.12;

QRectF upperHalf(const QRectF& row) {
    return row.adjusted(0, 4, 0, -row.height() / 2 + 1);
}

QRectF lowerHalf(const QRectF& row) {
    return row.adjusted(0, row.height() / 2, 0, -5);
}

QString details(const FreeRamPreview& candidate) {
    return CandidateRow::tr("PID %1 • %2").arg(candidate.pid).arg(Translations::of(candidate.group));
}

/// Returns "frees ≈ 410 MB", or a bound while the process is not read.
QString givesBack(const FreeRamPreview& candidate) {
    const QString size = Formatters::bytes(candidate.givesBack.totalBytes());
    return candidate.givesBack.isRough ? CandidateRow::tr("frees ≤ %1").arg(size)
                                       : CandidateRow::tr("frees ≈ %1").arg(size);
}

} // namespace

CandidateRow::CandidateRow(QWidget* parent)
    : QAbstractButton(parent) {
    setCheckable(true);
    Theme::fixHeight(this, candidateRowHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    actOnPressed(this, m_candidate.pid, [this](qint32 pid) { Q_EMIT ticked(pid); });
}

QSize CandidateRow::sizeHint() const {
    return {400, candidateRowHeight};
}

void CandidateRow::set(const FreeRamPreview& candidate, bool isTicked) {
    setChecked(isTicked);
    if (candidate == m_candidate)
        return;
    m_candidate = candidate;
    setAccessibleName(tr("%1, %2, %3, idle %4, %5")
                          .arg(Formatters::visible(candidate.name), details(candidate),
                               Formatters::bytes(candidate.rssBytes),
                               Formatters::duration(candidate.idleSeconds), givesBack(candidate)));
    update();
}

void CandidateRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const QRectF ground = QRectF(rect()).adjusted(0, 1, 0, -1);
    if (isChecked())
        Painting::drawCard(painter, ground, Theme::controlRadius, Theme::color(Role::accent, tickedOpacity));
    if (underMouse())
        Painting::drawCard(painter, ground, Theme::controlRadius, Theme::color(Role::hoverFill));
    if (hasFocus())
        Painting::drawFocusRing(painter, ground, Theme::controlRadius);

    QRectF line = QRectF(rect()).adjusted(10, 0, -10, 0);
    const QRectF box(line.left(), qRound(line.center().y() - boxSide / 2.0), boxSide, boxSide);
    Painting::drawTickBox(painter, box, isChecked() ? Qt::Checked : Qt::Unchecked);
    line.setLeft(line.left() + boxSide + 10);
    QRectF figures = Painting::takeRight(line, candidateBytesWidth + idleWidth);
    Painting::setTextStyle(painter, TextStyle::caption2, Role::secondaryText);
    Painting::drawTabular(painter, lowerHalf(figures), Qt::AlignRight, givesBack(m_candidate));
    figures = upperHalf(figures);
    painter.setFont(Theme::font(TextStyle::caption));
    Painting::drawTabular(painter, Painting::takeRight(figures, idleWidth), Qt::AlignRight,
                          Formatters::duration(m_candidate.idleSeconds));
    painter.setPen(Theme::color(Role::primaryText));
    Painting::drawTabular(painter, figures, Qt::AlignRight, Formatters::bytes(m_candidate.rssBytes));

    painter.setFont(Theme::font(TextStyle::body));
    Painting::drawElided(painter, upperHalf(line), Qt::ElideMiddle, Formatters::visible(m_candidate.name));
    Painting::setTextStyle(painter, TextStyle::caption2, Role::secondaryText);
    Painting::drawElided(painter, lowerHalf(line), Qt::ElideRight, details(m_candidate));
}
