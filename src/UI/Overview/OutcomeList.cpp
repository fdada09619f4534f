#include "UI/Overview/OutcomeList.h"

#include "Core/Formatters.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length resultRowHeight{22};
constexpr int maxRowsShown = 5;

struct ResultLook {
    QString symbol;
    Role role;
    QString text;
};

ResultLook lookOf(const OutcomeList::Line& line) {
    if (line.wasSpared)
        return {QStringLiteral("info.circle.fill"), Role::blue, OutcomeList::tr("Still running")};
    if (!line.outcome)
        return {QStringLiteral("info.circle.fill"), Role::blue,
                OutcomeList::tr("Left alone: it belongs to something else")};
    const ResultLook looks[] = {
        {QStringLiteral("checkmark.circle.fill"), Role::green, OutcomeList::tr("Quit")},
        {QStringLiteral("bolt.fill"), Role::orange, OutcomeList::tr("Force-killed")},
        {QStringLiteral("questionmark.circle.fill"), Role::yellow, OutcomeList::tr("Ignored SIGTERM/KILL")},
        {QStringLiteral("lock.fill"), Role::red, OutcomeList::tr("Permission denied")}};
    return looks[static_cast<int>(*line.outcome)];
}

/// One process: symbol, name, PID and outcome.
class OutcomeRow : public QWidget {
public:
    explicit OutcomeRow(const OutcomeList::Line& record)
        : m_look(lookOf(record))
        , m_name(Formatters::visible(record.name))
        , m_pid(QStringLiteral("(%1)").arg(record.pid)) {
        Theme::fixHeight(this, resultRowHeight);
        setAccessibleName(QStringLiteral("%1 %2 %3").arg(m_name, m_pid, m_look.text));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        Painting::mirror(painter, *this);
        QRectF line = rect();
        Symbols::draw(painter, m_look.symbol, Theme::color(m_look.role),
                      QRectF(0, 0, Theme::iconColumn, height()), 14);
        line.setLeft(Theme::iconColumn + 4);
        Painting::setTextStyle(painter, TextStyle::caption, m_look.role, QFont::Medium);
        const double outcomeWidth = QFontMetricsF(painter.font()).horizontalAdvance(m_look.text);
        Painting::drawElided(painter, QRectF(line.right() - outcomeWidth - 1, 0, outcomeWidth + 1, height()),
                             Qt::ElideRight, m_look.text);
        Painting::setTextStyle(painter, TextStyle::caption, Role::primaryText);
        const QFontMetricsF metrics(painter.font());
        const double pidWidth = metrics.horizontalAdvance(m_pid) + Theme::rowSpacing;
        line.setRight(line.right() - outcomeWidth - Theme::rowSpacing - pidWidth);
        const QString name = metrics.elidedText(m_name, Qt::ElideMiddle, line.width());
        Painting::drawElided(painter, line, Qt::ElideMiddle, m_name);
        Painting::setTextStyle(painter, TextStyle::caption2, Role::secondaryText);
        line.setLeft(line.left() + metrics.horizontalAdvance(name) + 6);
        line.setRight(line.left() + pidWidth);
        Painting::drawTabular(painter, line, Qt::AlignLeft, m_pid);
    }

private:
    ResultLook m_look;
    QString m_name;
    QString m_pid;
};

} // namespace

OutcomeList::OutcomeList(QWidget* parent)
    : QScrollArea(parent)
    , m_column(makeScrollingPage(this, {}, 0)) {
    setAccessibleName(tr("Processes"));
    viewport()->setAutoFillBackground(false);
    widget()->setAutoFillBackground(false);
}

bool OutcomeList::event(QEvent* event) {
    const bool done = QScrollArea::event(event);
    if (event->type() == QEvent::Paint && hasFocus()) {
        QPainter painter(this);
        Painting::drawFocusRing(painter, rect(), Theme::controlRadius);
    }
    return done;
}

void OutcomeList::set(const QList<Line>& lines) {
    qDeleteAll(m_rows);
    m_rows.clear();
    for (const Line& line : lines) {
        m_rows.append(new OutcomeRow(line));
        m_column->addWidget(m_rows.last());
    }
    const auto shown = std::min<qsizetype>(m_rows.size(), maxRowsShown);
    setFixedHeight(static_cast<int>(shown) * resultRowHeight);
    setFocusPolicy(m_rows.size() > maxRowsShown ? Qt::TabFocus : Qt::NoFocus);
    setVisible(!m_rows.isEmpty());
}
