#include "UI/Sessions/SessionTree.h"

#include "Core/Formatters.h"
#include "UI/Sessions/RowHeader.h"
#include "UI/Sessions/SessionTexts.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length treeRowHeight{26};
constexpr Theme::Length indent{18};
constexpr int maxIndented = 8; ///< deeper ones stand as far to the right as this depth
constexpr Theme::Length partSymbolSize{14};
constexpr int portsGap = 12;
constexpr int treeColumnGap = 12;

} // namespace

SessionProcessRow::SessionProcessRow(int trailing, QWidget* parent)
    : QWidget(parent)
    , m_trailing(trailing) {
    Theme::fixHeight(this, treeRowHeight);
}

void SessionProcessRow::set(const SessionProcess& member, int depth, Instant now) {
    const ProcSample& process = member.process;
    const SummedMemory memory = SessionTexts::memoryOf(member);
    m_part = member.part;
    m_depth = std::min(depth, maxIndented);
    m_name = Formatters::visible(process.name);
    m_ports = SessionTexts::ports(member);
    m_memory = memory.text();
    m_age = SessionTexts::age(process, now);
    QStringList spoken{m_name, SessionTexts::nameOf(m_part)};
    if (!m_ports.isEmpty())
        spoken.append(tr("listens on %1").arg(m_ports));
    spoken << memory.description() << tr("running for %1").arg(m_age);
    setAccessibleName(Formatters::list(spoken));
    const QString command = process.arguments.isEmpty() ? process.executablePath : process.arguments;
    setToolTip(Formatters::toolTip(
        tr("%1, PID %2").arg(SessionTexts::nameOf(m_part), QString::number(process.pid)) + u'\n' +
        SessionTexts::memoryParts(memory) + u'\n' + Formatters::visible(command)));
    update();
}

void SessionProcessRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    QRectF line(rect());
    line.setLeft(Theme::cardPadding + RowHeader::chevronColumn + m_depth * indent);
    const QRectF age = Painting::takeRight(line, m_trailing, treeColumnGap);
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    Painting::drawTabular(painter, age, Qt::AlignLeft, m_age);
    const QRectF memory = Painting::takeRight(line, RowHeader::memoryWidth, treeColumnGap);
    Painting::setTextStyle(painter, TextStyle::caption, Role::primaryText);
    Painting::drawTabular(painter, memory, Qt::AlignRight, m_memory);

    const QRectF symbol(line.left(), 0, partSymbolSize, height());
    Symbols::draw(painter, SessionTexts::symbolOf(m_part),
                  Theme::color(m_part == SessionPart::agent ? Role::accent : Role::secondaryText), symbol,
                  partSymbolSize);
    line.setLeft(symbol.right() + Theme::rowSpacing);
    Painting::setTextStyle(painter, TextStyle::caption, Role::accent, QFont::Medium);
    const double portsWidth =
        m_ports.isEmpty() ? 0 : std::min(Painting::tabularWidth(painter.font(), m_ports), line.width() / 2);
    const double room = line.width() - (portsWidth > 0 ? portsWidth + portsGap : 0);
    const QFont portsFont = painter.font();
    Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText);
    const double nameWidth =
        std::min(QFontMetricsF(painter.font()).horizontalAdvance(m_name) + 1, std::max(room, 0.0));
    Painting::drawElided(painter, QRectF(line.left(), 0, nameWidth, height()), Qt::ElideMiddle, m_name);
    painter.setFont(portsFont);
    painter.setPen(Theme::color(Role::accent));
    Painting::drawElided(painter, QRectF(line.left() + nameWidth + portsGap, 0, portsWidth + 1, height()),
                         Qt::ElideRight, m_ports);
}

SessionTree::SessionTree(int trailing, QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_rows([this, trailing] {
        auto* row = new SessionProcessRow(trailing);
        m_column->addWidget(row);
        return row;
    }) {
    m_column->setContentsMargins(0, 0, 0, Theme::rowSpacing);
    m_column->setSpacing(0);
}

void SessionTree::set(const QList<SessionProcess>& processes, Instant now) {
    const auto top = std::ranges::min_element(processes, {}, &SessionProcess::depth);
    m_rows.show(processes.size(), [&](SessionProcessRow& row, qsizetype i) {
        row.set(processes[i], processes[i].depth - top->depth, now);
    });
}
