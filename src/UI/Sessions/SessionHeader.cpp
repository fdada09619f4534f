#include "UI/Sessions/SessionHeader.h"

#include "Core/Formatters.h"
#include "UI/Overview/Sparkline.h"
#include "UI/Sessions/SessionTexts.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;
using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length stateSymbolSize{12};
constexpr Theme::Length cpuWidth{46};
constexpr QSize sparklineSize(56, 24);
constexpr int headerFigureGap = 12;
constexpr int barHeight = 4;

/// Returns the parts in one line, without those at the end that do not fit.
QString fitting(QStringList parts, const QFontMetricsF& metrics, double width) {
    const QString bullet = u" • "_s;
    while (parts.size() > 2 && metrics.horizontalAdvance(parts.join(bullet)) > width)
        parts.removeLast();
    return parts.join(bullet);
}

} // namespace

SessionHeader::SessionHeader(QWidget* parent)
    : RowHeader(parent)
    , m_sparkline(new Sparkline(this)) {
    m_sparkline->setFixedSize(sparklineSize);
    m_sparkline->setAttribute(Qt::WA_TransparentForMouseEvents);
}

SessionHeader::Texts SessionHeader::textsOf(const Session& session, Instant now) {
    QStringList aside;
    for (const QString& text : {session.name, session.waitingFor}) {
        if (!text.isEmpty())
            aside.append(Formatters::visible(text));
    }
    QStringList details{SessionTexts::processCount(session.processes.size())};
    if (!session.folder.isEmpty() || !session.version.isEmpty())
        details.append(SessionTexts::agent(session));
    if (session.memory.swapBytes > 0)
        details.append(tr("%1 in swap").arg(Formatters::bytes(session.memory.swapBytes)));
    return {.heading = SessionTexts::heading(session),
            .aside = aside.join(u" • "_s),
            .lastActive = SessionTexts::lastActive(session, now),
            .details = details,
            .memory = session.memory.text(),
            .cpu = Formatters::percent(session.cpuPercent)};
}

void SessionHeader::set(const Session& session, Instant now, quint64 largestBytes) {
    const double share =
        largestBytes == 0 ? 0 : static_cast<double>(session.memory.bytes) / static_cast<double>(largestBytes);
    Texts texts = textsOf(session, now);
    QString parts = SessionTexts::memoryParts(session.memory);
    if (texts == m_texts && parts == m_parts && session.state == m_state && session.trend == m_trend &&
        share == m_share)
        return;
    m_texts = std::move(texts);
    m_parts = std::move(parts);
    m_state = session.state;
    m_trend = session.trend;
    m_share = share;
    setAccessibleName(
        tr("%1, %2, %3, %4 CPU, %5")
            .arg(m_texts.aside.isEmpty() ? m_texts.heading : m_texts.heading + u", "_s + m_texts.aside,
                 Formatters::list(
                     {SessionTexts::lookOf(m_state).text, tr("last active %1").arg(m_texts.lastActive)}),
                 Formatters::list(m_texts.details), m_texts.cpu, session.memory.description()));
    setToolTip(Formatters::toolTip(
        u"%1\n%2\n%3"_s.arg(Formatters::visible(session.folder.isEmpty() ? session.agent : session.folder),
                            m_texts.aside, m_parts)));
    tintSparkline();
    describeState();
    update();
}

void SessionHeader::describeState() {
    setAccessibleDescription(u"%1, %2"_s.arg(isExpanded() ? tr("Expanded") : tr("Collapsed"), m_parts));
}

/// Returns the colour of the bar and the line: quiet for a session that does nothing.
Role SessionHeader::tint() const {
    return m_state == SessionState::idle || m_state == SessionState::paused ? Role::gray : Role::accent;
}

void SessionHeader::tintSparkline() {
    m_sparkline->set(m_trend, Theme::color(tint()));
}

void SessionHeader::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        tintSparkline();
    RowHeader::changeEvent(event);
}

void SessionHeader::resizeEvent(QResizeEvent* event) {
    RowHeader::resizeEvent(event);
    const int right = width() - headerFigureGap - memoryWidth - headerFigureGap - cpuWidth - headerFigureGap;
    const QRect place(right - m_sparkline->width(), (height - m_sparkline->height()) / 2,
                      m_sparkline->width(), m_sparkline->height());
    m_sparkline->move(QStyle::visualRect(layoutDirection(), rect(), place).topLeft());
}

void SessionHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    QRectF line = paintGround(painter);
    line.setRight(width() - headerFigureGap);
    paintFigures(painter, line);
    paintTexts(painter, line);
}

void SessionHeader::paintFigures(QPainter& painter, QRectF& line) {
    const QRectF memory = Painting::takeRight(line, memoryWidth, headerFigureGap);
    Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText, QFont::Medium);
    Painting::drawTabular(painter, upperLine(memory), Qt::AlignRight, m_texts.memory);
    const QRectF below = lowerLine(memory);
    const QRectF bar(below.left(), qRound(below.center().y() - barHeight / 2.0), below.width(), barHeight);
    Painting::drawProgress(painter, bar, m_share, Theme::color(tint()));

    const QRectF cpu = Painting::takeRight(line, cpuWidth, headerFigureGap);
    const bool isBusy = m_texts.cpu != Formatters::percent(0);
    Painting::setTextStyle(painter, TextStyle::callout, isBusy ? Role::primaryText : Role::secondaryText);
    Painting::drawTabular(painter, upperLine(cpu), Qt::AlignRight, m_texts.cpu);
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    Painting::drawTabular(painter, lowerLine(cpu), Qt::AlignRight, tr("CPU"));
    Painting::takeRight(line, sparklineSize.width(), headerFigureGap);
}

void SessionHeader::paintTexts(QPainter& painter, QRectF line) {
    const SessionTexts::StateLook look = SessionTexts::lookOf(m_state);
    Symbols::draw(painter, look.symbol, Theme::color(look.role),
                  QRectF(line.left(), line.top(), stateSymbolSize, line.height()), stateSymbolSize);
    line.setLeft(line.left() + symbolColumn);

    QRectF upper = upperLine(line);
    Painting::setTextStyle(painter, TextStyle::body, Role::primaryText, QFont::Medium);
    Painting::drawElided(painter, upper, Qt::ElideMiddle, m_texts.heading);
    upper.setLeft(upper.left() + QFontMetricsF(painter.font()).horizontalAdvance(m_texts.heading) +
                  Theme::rowSpacing);
    Painting::setTextStyle(painter, TextStyle::callout, Role::secondaryText);
    if (upper.width() > symbolColumn)
        Painting::drawElided(painter, upper, Qt::ElideRight, m_texts.aside);

    QRectF lower = lowerLine(line);
    Painting::setTextStyle(painter, TextStyle::caption, look.role, QFont::Medium);
    Painting::drawElided(painter, lower, Qt::ElideRight, look.text);
    lower.setLeft(lower.left() + QFontMetricsF(painter.font()).horizontalAdvance(look.text));
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    Painting::drawElided(painter, lower, Qt::ElideRight,
                         fitting(QStringList{QString(), m_texts.lastActive} + m_texts.details,
                                 QFontMetricsF(painter.font()), lower.width()));
}
