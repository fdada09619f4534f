#include "UI/MenuBarPanel.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/FigureColumn.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PanelRow.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Sessions/SessionTexts.h"
#include "UI/Style/Painting.h"
#include "UI/Widget.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length panelSymbolWidth{16};
constexpr int panelPadding = 12;
constexpr int panelEdge = 8; ///< above and below; the panel is full with three alerts
constexpr int panelSpacing = 8;
constexpr int flatButtonPadding = 8; ///< before the symbol of a button without a border

TextLabel* caption(const QString& text) {
    auto* label = (new TextLabel(TextStyle::caption))->secondary();
    label->setPlainText(text);
    return label;
}

PanelRow* addRow(QVBoxLayout* column, TextStyle style) {
    auto* row = new PanelRow(style, panelSymbolWidth);
    column->addWidget(row);
    return row;
}

PanelRow::Content contentOf(const ProcSample& process) {
    return {.symbol = groupSymbol(process.group),
            .tint = Role::accent,
            .text = process.name,
            .textRole = Role::primaryText,
            .figure = Formatters::bytes(process.rssBytes)};
}

PanelRow::Content contentOf(const Alert& alert) {
    const bool danger = alert.severity == Alert::Severity::danger;
    const Role role = danger ? Role::red : Role::orange;
    return {.symbol = danger ? QStringLiteral("exclamationmark.octagon")
                             : QStringLiteral("exclamationmark.triangle"),
            .tint = role,
            .text = alert.title,
            .textRole = role,
            .figure = {}};
}

} // namespace

MenuBarPanel::MenuBarPanel(AppModel& model, WidgetWindow& widget, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_widget(widget)
    , m_sessions(new PushButton(QString(), PushButton::Look::borderless, QStringLiteral("bubble.prompt")))
    , m_processColumn(new QVBoxLayout)
    , m_processRows([this] { return addRow(m_processColumn, TextStyle::callout); })
    , m_alertSection(new QWidget)
    , m_alertColumn(new QVBoxLayout)
    , m_alertRows([this] { return addRow(m_alertColumn, TextStyle::caption); }) {
    for (QVBoxLayout* rows : {m_processColumn, m_alertColumn})
        rows->setSpacing(0);
    m_processRows.reserve(shownProcesses);
    m_alertRows.reserve(shownAlerts);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(panelPadding, panelEdge, panelPadding, panelEdge);
    column->setSpacing(panelSpacing);
    column->addLayout(makeHeader());
    column->addWidget(new Divider);
    auto* figures = new QVBoxLayout;
    figures->setSpacing(Theme::textGap);
    figures->addLayout(makeStatistics());
    figures->addLayout(makeSessions());
    column->addLayout(figures);
    column->addWidget(new Divider);
    column->addWidget(caption(tr("Top 5 by RAM")));
    column->addLayout(m_processColumn);

    auto* alerts = new QVBoxLayout(m_alertSection);
    alerts->setContentsMargins(0, 0, 0, 0);
    alerts->setSpacing(panelSpacing);
    alerts->addWidget(new Divider);
    alerts->addWidget(caption(tr("Alerts")));
    alerts->addLayout(m_alertColumn);
    column->addWidget(m_alertSection);
    column->addStretch();

    refreshOnScreen(this, {&m_model}, [this] { refresh(); });
}

QLayout* MenuBarPanel::makeHeader() {
    auto* title = new TextLabel(TextStyle::headline);
    title->setPlainText(QStringLiteral("Tavrin"));
    auto* widgetButton =
        new IconButton(QStringLiteral("rectangle.on.rectangle"), tr("Toggle floating widget"));
    connect(widgetButton, &IconButton::clicked, this, [this] { m_widget.toggle(m_model); });
    auto* open = new TextButton(tr("Open"));
    connect(open, &TextButton::clicked, this, &MenuBarPanel::openMainWindow);

    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(title);
    row->addStretch();
    row->addWidget(widgetButton);
    row->addWidget(open);
    return row;
}

QLayout* MenuBarPanel::makeStatistics() {
    auto* row = new QHBoxLayout;
    row->setSpacing(panelSpacing);
    const QStringList labels{tr("CPU"), tr("RAM"), tr("Disk"), tr("Therm")};
    for (std::size_t i = 0; i < m_statistics.size(); ++i) {
        m_statistics[i] = new FigureColumn(labels[static_cast<qsizetype>(i)]);
        row->addWidget(m_statistics[i], 1);
    }
    return row;
}

QLayout* MenuBarPanel::makeSessions() {
    m_sessions->setSmall();
    m_sessions->hide();
    connect(m_sessions, &PushButton::clicked, this, &MenuBarPanel::openMainWindow);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addSpacing(-flatButtonPadding); // the symbol stands above those of the rows
    row->addWidget(m_sessions);
    row->addStretch();
    return row;
}

void MenuBarPanel::refresh() {
    m_model.wantSessions();
    refreshStatistics();
    refreshSessions();
    refreshProcesses();
    refreshAlerts();
}

void MenuBarPanel::refreshStatistics() {
    const SystemSample& sample = m_model.systemSample();
    m_statistics[0]->setFigure(Formatters::percent(sample.cpuPercent));
    m_statistics[1]->setFigure(Formatters::percent(sample.memUsedPercent()));
    m_statistics[2]->setFigure(sample.diskTotalBytes == 0 ? QStringLiteral("—")
                                                          : Formatters::percent(sample.diskUsedPercent()));
    m_statistics[3]->setFigure(thermalLabel(sample.thermalState));
}

void MenuBarPanel::refreshSessions() {
    const QString summary = SessionTexts::summary(m_model.sessionReport());
    m_sessions->setText(summary);
    m_sessions->setVisible(!summary.isEmpty());
}

void MenuBarPanel::refreshProcesses() {
    const QList<ProcSample>& processes = m_model.processes();
    m_processRows.show(std::min(processes.size(), shownProcesses),
                       [&processes](PanelRow& row, qsizetype i) { row.set(contentOf(processes[i])); });
}

void MenuBarPanel::refreshAlerts() {
    const QList<Alert>& alerts = m_model.alerts();
    m_alertSection->setVisible(!alerts.isEmpty());
    m_alertRows.show(std::min(alerts.size(), shownAlerts),
                     [&alerts](PanelRow& row, qsizetype i) { row.set(contentOf(alerts[i])); });
}

void MenuBarPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Theme::color(Role::windowFill));
    painter.setPen(Theme::color(Role::cardBorder));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
