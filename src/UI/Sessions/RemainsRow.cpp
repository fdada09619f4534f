#include "UI/Sessions/RemainsRow.h"

#include "Core/Formatters.h"
#include "UI/Kit/KeptFocus.h"
#include "UI/Kit/Pressed.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/RowButton.h"
#include "UI/Sessions/SessionTexts.h"
#include "UI/Sessions/SessionTree.h"
#include "UI/Style/Margins.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;
using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int figureGap = 12;
constexpr Theme::Length remainsSymbolSize{14};

/// Returns the width of the buttons of both kinds, so that the figures stand below each other.
int widestButton() {
    int widest = 0;
    for (const Remains& kind : {Remains{LeftOver()}, Remains{DuplicateServers()}}) {
        PushButton button(kind.endText(), PushButton::Look::destructive);
        button.setSmall();
        widest = std::max(widest, button.sizeHint().width());
    }
    return widest;
}

} // namespace

void RemainsHeader::set(const Remains& remains, Instant now) {
    m_symbol = remains.symbol();
    m_title = remains.title();
    m_details = remains.details(now);
    m_memory = remains.memory().text();
    m_parts = SessionTexts::memoryParts(remains.memory());
    setAccessibleName(u"%1, %2, %3"_s.arg(m_title, m_details, remains.memory().description()));
    setToolTip(Formatters::toolTip(m_title + u'\n' + m_parts));
    describeState();
    update();
}

void RemainsHeader::describeState() {
    setAccessibleDescription(u"%1, %2"_s.arg(isExpanded() ? tr("Expanded") : tr("Collapsed"), m_parts));
}

void RemainsHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    QRectF line = paintGround(painter);
    line.setRight(width() - figureGap);
    const QRectF memory = Painting::takeRight(line, memoryWidth, figureGap);
    Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText, QFont::Medium);
    Painting::drawTabular(painter, memory, Qt::AlignRight, m_memory);
    const QRectF symbol(line.left() - 1, line.top(), remainsSymbolSize, line.height());
    Symbols::draw(painter, m_symbol, Theme::color(Role::secondaryText), symbol, remainsSymbolSize);
    line.setLeft(line.left() + symbolColumn);
    Painting::setTextStyle(painter, TextStyle::body, Role::primaryText, QFont::Medium);
    Painting::drawElided(painter, upperLine(line), Qt::ElideMiddle, m_title);
    Painting::setTextStyle(painter, TextStyle::caption, Role::secondaryText);
    Painting::drawElided(painter, lowerLine(line), Qt::ElideRight, m_details);
}

RemainsRow::RemainsRow(QWidget* parent)
    : QWidget(parent)
    , m_header(new RemainsHeader)
    , m_end(new PushButton(QString(), PushButton::Look::destructive))
    , m_tree(new SessionTree(widestButton() + Theme::cardPadding)) {
    m_end->setSmall();
    m_end->setFixedWidth(widestButton());
    m_tree->hide();
    auto* line = new QHBoxLayout;
    line->setContentsMargins(mirrored({0, 0, Theme::cardPadding, 0}));
    line->setSpacing(0);
    line->addWidget(m_header, 1);
    line->addWidget(m_end);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 1, 0, 0);
    column->setSpacing(0);
    column->addLayout(line);
    column->addWidget(m_tree);

    actOnPressed(m_header, m_remains, [this](const Remains& remains) { Q_EMIT toggled(remains); });
    actOnPressed(m_end, m_remains, [this](const Remains& remains) { Q_EMIT endRequested(remains); });
    connect(m_header, &RemainsHeader::endRequested, this, [this] {
        if (m_end->isEnabled())
            Q_EMIT endRequested(m_remains);
    });
}

void RemainsRow::set(const Remains& remains, const Setting& setting) {
    m_remains = remains;
    m_header->set(remains, setting.now);
    m_header->setExpanded(setting.isExpanded);
    m_end->setText(remains.endText());
    nameRowButton(m_end, remains.endText(), remains.title());
    if (m_end->isEnabled() == setting.isEnding) {
        KeptFocus::setEnabled(m_end, !setting.isEnding);
        m_end->setBusy(setting.isEnding);
    }
    if (setting.isExpanded)
        m_tree->set(remains.processes(), setting.now);
    m_tree->setVisible(setting.isExpanded);
    if (m_isFirst != setting.isFirst) {
        m_isFirst = setting.isFirst;
        update();
    }
}

void RemainsRow::paintEvent(QPaintEvent*) {
    if (m_isFirst)
        return;
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, Theme::color(Role::separator));
}

void RemainsRow::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* end = menu->addAction(m_remains.endText() + u'…', this,
                                [this, remains = m_remains] { Q_EMIT endRequested(remains); });
    end->setEnabled(m_end->isEnabled());
    menu->popup(event->globalPos());
}
