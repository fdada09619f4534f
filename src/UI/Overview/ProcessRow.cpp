#include "UI/Overview/ProcessRow.h"

#include "Core/Formatters.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/Pressed.h"
#include "UI/Kit/RowButton.h"
#include "UI/Style/Margins.h"
#include "UI/Style/Painting.h"

#include <QHBoxLayout>
#include <QPainter>

#include <functional>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length processRowHeight{28};
constexpr Theme::Length processPidWidth{60};
constexpr Theme::Length processCpuWidth{50};
constexpr Theme::Length memoryWidth{80};

} // namespace

ProcessRow::ProcessRow(QWidget* parent)
    : QWidget(parent) {
    Theme::fixHeight(this, processRowHeight);
    setAttribute(Qt::WA_Hover);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(mirrored({0, 0, Theme::cardPadding, 0}));
    row->setSpacing(Theme::textGap);
    row->addStretch();
    auto* quit = addButton(QStringLiteral("stop.circle"), tr("Quit (SIGTERM)"), Role::secondaryText,
                           &ProcessRow::quitRequested);
    auto* kill = addButton(QStringLiteral("xmark.octagon"), tr("Force kill (SIGKILL)"), Role::red,
                           &ProcessRow::forceKillRequested);
    row->addWidget(quit);
    row->addWidget(kill);
    m_buttonsWidth = quit->width() + kill->width() + row->spacing();
}

IconButton* ProcessRow::addButton(const QString& symbol, const QString& help, Role tint,
                                  void (ProcessRow::*request)(const ProcSample&)) {
    auto* button = new IconButton(symbol, help, tint);
    button->setQuiet();
    actOnPressed(button, m_process, std::bind_front(request, this));
    return button;
}

void ProcessRow::set(const ProcSample& process) {
    const QString name = Formatters::visible(process.name);
    const QString cpu = Formatters::percent(process.cpuPercent);
    const QString memory = Formatters::bytes(process.rssBytes);
    const bool isSame = m_process.pid == process.pid;
    m_process = process;
    if (isSame && m_name == name && m_cpu == cpu && m_memory == memory)
        return;
    m_name = name;
    m_cpu = cpu;
    m_memory = memory;
    setToolTip(Formatters::toolTip(Formatters::visible(process.executablePath)));
    setAccessibleName(tr("%1 %2, CPU %3, memory %4").arg(process.pid).arg(m_name, m_cpu, m_memory));
    for (IconButton* button : findChildren<IconButton*>())
        nameRowButton(button, button->toolTip(),
                      QStringLiteral("%1 (%2)").arg(m_name, QString::number(process.pid)));
    update();
}

void ProcessRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    if (underMouse())
        painter.fillRect(rect(), Theme::color(Role::hoverFill));
    QRectF line = QRectF(rect()).adjusted(Theme::cardPadding, 0, -Theme::cardPadding, 0);
    Painting::takeRight(line, m_buttonsWidth);
    Painting::setTextStyle(painter, TextStyle::caption, Role::primaryText);
    Painting::drawTabular(painter, Painting::takeRight(line, memoryWidth), Qt::AlignRight, m_memory);
    Painting::drawTabular(painter, Painting::takeRight(line, processCpuWidth), Qt::AlignRight, m_cpu);

    painter.setPen(Theme::color(Role::secondaryText));
    Painting::drawTabular(painter, line, Qt::AlignLeft, QString::number(m_process.pid));

    line.setLeft(line.left() + processPidWidth);
    Painting::setTextStyle(painter, TextStyle::callout, Role::primaryText);
    Painting::drawElided(painter, line, Qt::ElideMiddle, m_name);
}
