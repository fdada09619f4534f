#include "UI/Optimize/ServerRow.h"

#include "Core/Formatters.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/Pressed.h"
#include "UI/Kit/RowButton.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length serverRowHeight{28};
constexpr Theme::Length serverBytesWidth{80};
constexpr Theme::Length serverPidWidth{86};
constexpr Theme::Length parentWidth{170};

QFont monospaced() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(Theme::font(TextStyle::caption).pointSizeF());
    return font;
}

} // namespace

ServerRow::ServerRow(QWidget* parent)
    : QWidget(parent)
    , m_quit(new IconButton(QStringLiteral("stop.circle"), tr("Quit")))
    , m_buttonWidth(m_quit->width()) {
    Theme::fixHeight(this, serverRowHeight);
    setAttribute(Qt::WA_Hover);
    m_quit->setQuiet();
    actOnPressed(m_quit, m_server, [this](const auto& server) { Q_EMIT quitRequested(server); });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(m_quit);
}

void ServerRow::set(const MCPInspector::LiveServer& server) {
    if (server == m_server)
        return;
    m_server = server;
    const QString label = Formatters::visible(server.displayLabel);
    setToolTip(Formatters::toolTip(label + u'\n' + server.reason));
    setAccessibleDescription(server.reason);
    nameRowButton(m_quit, m_quit->toolTip(),
                  QStringLiteral("%1 (%2)").arg(label, QString::number(server.pid)));
    setAccessibleName(
        (server.isOrphan ? tr("Orphan %1, PID %2, parent: %3, %4") : tr("Running %1, PID %2, parent: %3, %4"))
            .arg(label, QString::number(server.pid), Formatters::visible(server.parentName),
                 Formatters::bytes(server.rssBytes)));
    update();
}

void ServerRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    QRectF line = rect();
    Painting::takeRight(line, m_buttonWidth);
    Painting::setTextStyle(painter, TextStyle::caption, Role::primaryText);
    Painting::drawTabular(painter, Painting::takeRight(line, serverBytesWidth), Qt::AlignRight,
                          Formatters::bytes(m_server.rssBytes));
    painter.setPen(Theme::color(Role::secondaryText));
    Painting::drawElided(painter, Painting::takeRight(line, parentWidth), Qt::ElideRight,
                         tr("parent: %1").arg(Formatters::visible(m_server.parentName)));
    Painting::drawTabular(painter, Painting::takeRight(line, serverPidWidth), Qt::AlignLeft,
                          tr("PID %1").arg(m_server.pid));

    constexpr int symbolSize = 12;
    const QRectF icon(line.left(), 0, symbolSize + 2, height());
    const bool isOrphan = m_server.isOrphan;
    Symbols::draw(
        painter, isOrphan ? QStringLiteral("exclamationmark.triangle.fill") : QStringLiteral("circle.fill"),
        Theme::color(isOrphan ? Role::red : Role::green), icon, isOrphan ? symbolSize + 2 : symbolSize);
    line.setLeft(icon.right() + Theme::rowSpacing);
    painter.setFont(monospaced());
    painter.setPen(Theme::color(Role::primaryText));
    Painting::drawElided(painter, line, Qt::ElideMiddle, Formatters::visible(m_server.displayLabel));
}
