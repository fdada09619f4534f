#include "UI/Overview/GroupRow.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Overview/ProcessRow.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length groupHeaderHeight{44};
constexpr Theme::Length labelWidth{230};
constexpr Theme::Length groupBytesWidth{84};
constexpr Theme::Length groupCpuWidth{84};
constexpr Theme::Length chevronWidth{16};
constexpr Theme::Length groupChevronSize{12};
constexpr int groupBarHeight = 6;
constexpr int columnGap = 12;

} // namespace

GroupHeader::GroupHeader(ProcGroup group, QWidget* parent)
    : QAbstractButton(parent) {
    m_rollup.group = group;
    Theme::fixHeight(this, groupHeaderHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    describe();
}

QSize GroupHeader::sizeHint() const {
    return {labelWidth + groupBytesWidth + groupCpuWidth, groupHeaderHeight};
}

void GroupHeader::set(const GroupRollup& rollup, quint64 totalRAM, bool isExpanded) {
    const double share =
        totalRAM == 0
            ? 0
            : std::min(1.0, static_cast<double>(rollup.memory.bytes) / static_cast<double>(totalRAM));
    if (rollup == m_rollup && share == m_share && isExpanded == m_expanded)
        return;
    m_rollup = rollup;
    m_share = share;
    m_expanded = isExpanded;
    describe();
    update();
}

/// Sets the tool tip and the text for screen readers.
void GroupHeader::describe() {
    setAccessibleName(tr("%1 (%2), %3, %4 CPU")
                          .arg(Translations::of(m_rollup.group))
                          .arg(m_rollup.count)
                          .arg(m_rollup.memory.description(), Formatters::percent(m_rollup.cpuPercent)));
    const QString state = m_expanded ? tr("Expanded") : tr("Collapsed");
    const bool hasNote = !m_note.isEmpty();
    setToolTip(Formatters::toolTip(m_rollup.memory.parts() + (hasNote ? u'\n' + m_note : QString())));
    setAccessibleDescription(hasNote ? QStringLiteral("%1, %2").arg(state, m_note) : state);
}

void GroupHeader::setNote(const QString& note) {
    if (note == m_note)
        return;
    m_note = note;
    describe();
}

void GroupHeader::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void GroupHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    if (underMouse())
        Painting::drawCard(painter, rect(), Theme::cardRadius, Theme::color(Role::hoverFill));

    QRectF line = QRectF(rect()).adjusted(Theme::cardPadding, 0, -Theme::cardPadding, 0);
    const auto secondary = Theme::color(Role::secondaryText);
    const auto chevron = m_expanded ? QStringLiteral("chevron.down") : QStringLiteral("chevron.right");
    Symbols::draw(painter, chevron, secondary, Painting::takeRight(line, chevronWidth, columnGap),
                  groupChevronSize);

    painter.setFont(Theme::font(TextStyle::caption));
    painter.setPen(secondary);
    const auto cpu = tr("• %1 CPU").arg(Formatters::percent(m_rollup.cpuPercent));
    Painting::drawTabular(painter, Painting::takeRight(line, groupCpuWidth, columnGap), Qt::AlignRight, cpu);

    Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText);
    Painting::drawTabular(painter, Painting::takeRight(line, groupBytesWidth, columnGap), Qt::AlignRight,
                          m_rollup.memory.text());

    paintLabel(painter, QRectF(line.left(), line.top(), labelWidth, line.height()));
    line.setLeft(line.left() + labelWidth + columnGap);
    const QRectF bar(line.left(), qRound(line.center().y() - groupBarHeight / 2.0), line.width(),
                     groupBarHeight);
    Painting::drawProgress(painter, bar, m_share, Theme::color(Role::accent));

    if (hasFocus())
        Painting::drawFocusRing(painter, rect(), Theme::cardRadius);
}

void GroupHeader::paintLabel(QPainter& painter, QRectF area) {
    const QRectF icon(area.left(), area.top(), Theme::iconColumn, area.height());
    Symbols::draw(painter, groupSymbol(m_rollup.group), Theme::color(Role::accent), icon, Theme::iconSize);

    area.setLeft(icon.right() + Theme::rowSpacing);
    const QString label = Translations::of(m_rollup.group);
    Painting::setTextStyle(painter, TextStyle::body, Role::primaryText, QFont::Medium);
    Painting::drawElided(painter, area, Qt::ElideRight, label);

    area.setLeft(area.left() + QFontMetricsF(painter.font()).horizontalAdvance(label) + 6);
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    Painting::drawTabular(painter, area, Qt::AlignLeft, QStringLiteral("(%1)").arg(m_rollup.count));
}

GroupRow::GroupRow(ProcGroup group, QWidget* parent)
    : Card(parent)
    , m_header(new GroupHeader(group))
    , m_body(new QWidget)
    , m_rows([this] {
        auto* row = new ProcessRow;
        connect(row, &ProcessRow::quitRequested, this, &GroupRow::quitRequested);
        connect(row, &ProcessRow::forceKillRequested, this, &GroupRow::forceKillRequested);
        m_rowsLayout->addWidget(row);
        return row;
    })
    , m_overflow((new TextLabel(TextStyle::caption))->secondary()) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_body);

    auto* body = new QVBoxLayout(m_body);
    body->setContentsMargins(0, 0, 0, Theme::rowSpacing);
    body->setSpacing(0);
    m_rowsLayout = new QVBoxLayout;
    body->addLayout(m_rowsLayout);
    body->addWidget(m_overflow);
    m_overflow->setContentsMargins(8, 8, 8, 8);
    m_overflow->setIndent(Theme::cardPadding - 8);
    m_body->hide();

    connect(m_header, &GroupHeader::clicked, this, &GroupRow::toggled);
}

void GroupRow::set(const GroupRollup& rollup, quint64 totalRAM, bool isExpanded,
                   const QList<ProcSample>& members) {
    m_header->set(rollup, totalRAM, isExpanded);
    if (isExpanded)
        showMembers(members);
    m_body->setVisible(isExpanded);
}

bool GroupRow::isInUse() const {
    return m_body->underMouse() || m_body->isAncestorOf(QApplication::focusWidget());
}

void GroupRow::setNote(const QString& note) {
    m_header->setNote(note);
}

void GroupRow::showMembers(const QList<ProcSample>& members) {
    const qsizetype shown = std::min(members.size(), shownMembers);
    m_rows.show(shown, [&members](ProcessRow& row, qsizetype i) { row.set(members[i]); });
    const qsizetype hidden = members.size() - shown;
    m_overflow->setPlainText(tr("… +%1 more in Processes tab").arg(hidden));
    m_overflow->setVisible(hidden > 0);
}
