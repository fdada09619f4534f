#include "UI/WidgetView.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/IconButton.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PanelRow.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Style/Levels.h"
#include "UI/Style/Painting.h"

#include <QGraphicsDropShadowEffect>
#include <QGridLayout>
#include <QPainter>

#include <algorithm>
#include <functional>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int widgetPadding = 12;
constexpr int widgetSpacing = 10;
constexpr int tileSpacing = 8;
constexpr Theme::Length groupSymbolWidth{14};
constexpr double shadowOpacity = 0.35;
constexpr double shadowBlur = 8; // Qt's blur reaches half as far as it says

} // namespace

WidgetView::WidgetView(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_groupRows([this] {
        auto* row = new PanelRow(TextStyle::caption, groupSymbolWidth);
        m_groupColumn->addWidget(row);
        return row;
    })
    , m_alertSection(makeAlert()) {
    Theme::fixWidth(this, cardWidth);
    setAttribute(Qt::WA_Hover); // the buttons show themselves under the pointer
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(widgetPadding, widgetPadding, widgetPadding, widgetPadding);
    column->setSpacing(widgetSpacing);
    column->addLayout(makeHeader());
    column->addLayout(makeGrid());
    column->addWidget(new Divider);
    column->addLayout(makeGroups());
    column->addWidget(m_alertSection);
    column->addStretch();
    refreshOnScreen(this, {&m_model}, [this] { refresh(); });
}

QLayout* WidgetView::makeHeader() {
    auto* symbol = new SymbolView({16}, {16});
    symbol->set(QStringLiteral("waveform.path.ecg"), Role::accent);
    m_worst = new SymbolView({16}, {16});
    auto* name = (new TextLabel(TextStyle::caption, QFont::DemiBold))->secondary();
    name->setPlainText(QStringLiteral("Tavrin"));
    m_open = new IconButton(QStringLiteral("arrow.up.left.and.arrow.down.right"), tr("Open dashboard"));
    m_hide = new IconButton(QStringLiteral("xmark.circle.fill"), tr("Hide widget"));
    connect(m_open, &IconButton::clicked, this, &WidgetView::openMain);
    connect(m_hide, &IconButton::clicked, this, &WidgetView::close);

    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(symbol);
    row->addWidget(name);
    row->addSpacing(tileSpacing);
    row->addWidget(m_worst);
    row->addStretch();
    for (IconButton* button : {m_open, m_hide}) {
        button->setQuiet();
        row->addWidget(button);
    }
    return row;
}

QLayout* WidgetView::makeGrid() {
    auto* grid = new QGridLayout;
    grid->setSpacing(tileSpacing);
    const QStringList titles{tr("CPU"), tr("RAM"), tr("Disk free"), tr("Therm")};
    for (int i = 0; i < 4; ++i) {
        auto* tile = new MiniTile(titles[i]);
        m_tiles[static_cast<std::size_t>(i)] = tile;
        grid->addWidget(tile, i / 2, i % 2);
        grid->setColumnStretch(i % 2, 1);
    }
    return grid;
}

QLayout* WidgetView::makeGroups() {
    auto* heading = (new TextLabel(TextStyle::caption2))->secondary();
    heading->setPlainText(tr("Groups (RAM)"));
    m_groupColumn = new QVBoxLayout;
    m_groupColumn->setSpacing(0);
    m_groupColumn->addWidget(heading);
    m_groupRows.reserve(shownGroups); // the panel is placed by its height before the first tick
    return m_groupColumn;
}

QWidget* WidgetView::makeAlert() {
    m_alert = new PanelRow(TextStyle::caption, groupSymbolWidth);
    m_more = (new TextLabel(TextStyle::caption2))->secondary();
    auto* section = new QWidget;
    auto* column = new QVBoxLayout(section);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(new Divider);
    column->addWidget(m_alert);
    column->addWidget(m_more);
    return section;
}

void WidgetView::refresh() {
    m_model.memoryLedger().wantAll();
    refreshGrid();
    refreshGroups();
    refreshAlert();
}

void WidgetView::refreshGrid() {
    const SystemSample& sample = m_model.systemSample();
    const double used = sample.memUsedPercent();
    m_tiles[0]->set(Formatters::percent(sample.cpuPercent), Levels::cpu(sample.cpuPercent));
    m_tiles[1]->set(Formatters::percent(used), Levels::memory(used));
    m_tiles[2]->set(sample.diskTotalBytes == 0 ? QStringLiteral("—") : shortBytes(sample.diskFreeBytes),
                    Role::blue);
    m_tiles[3]->set(thermalLabel(sample.thermalState), Levels::thermal(sample.thermalState));
}

void WidgetView::refreshGroups() {
    QList<GroupRollup> groups = m_model.groups();
    std::ranges::stable_sort(groups, std::ranges::greater(),
                             [](const GroupRollup& group) { return group.memory.bytes; });
    m_groupRows.show(std::min(groups.size(), shownGroups), [&groups](PanelRow& row, qsizetype i) {
        row.set({.symbol = groupSymbol(groups[i].group),
                 .tint = Role::secondaryText,
                 .text = Translations::of(groups[i].group),
                 .textRole = Role::primaryText,
                 .figure = groups[i].memory.text(),
                 .toolTip = groups[i].memory.parts()});
    });
}

void WidgetView::refreshAlert() {
    const QList<Alert>& alerts = m_model.alerts();
    m_alertSection->setVisible(!alerts.isEmpty());
    m_worst->setVisible(!alerts.isEmpty());
    if (alerts.isEmpty())
        return;
    const Alert& worst = *Alert::worstOf(alerts);
    m_worst->set(severitySymbol(worst.severity), Levels::alert(worst.severity));
    m_worst->setToolTip(Formatters::toolTip(worst.title));
    m_alert->set({.symbol = severitySymbol(alerts.first().severity),
                  .tint = Levels::alert(alerts.first().severity),
                  .text = alerts.first().title,
                  .textRole = Role::primaryText,
                  .figure = {}});
    const auto more = static_cast<int>(alerts.size()) - 1;
    m_more->setPlainText(tr("+ %n more alert(s)", nullptr, more));
    m_more->setVisible(more > 0);
}

QString WidgetView::shortBytes(quint64 bytes) {
    constexpr double MiB = 1048576;
    constexpr double GiB = 1073741824;
    const auto count = static_cast<double>(bytes);
    if (count / GiB >= 1)
        return tr("%1G").arg(count / GiB, 0, 'f', 0);
    return tr("%1M").arg(count / MiB, 0, 'f', 0);
}

void WidgetView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    const bool translucent = window()->testAttribute(Qt::WA_TranslucentBackground);
    if (!translucent)
        painter.fillRect(rect(), Theme::color(Role::windowFill));
    Painting::drawCard(painter, rect(), cornerRadius, Theme::color(Role::windowFill, translucent ? 0.92 : 1),
                       Theme::isDark() ? QColor(255, 255, 255, 20) : Theme::color(Role::cardBorder));
}

MiniTile::MiniTile(QString title, QWidget* parent)
    : QWidget(parent)
    , m_title(std::move(title))
    , m_shadow(new QGraphicsDropShadowEffect(this)) {
    Theme::fixHeight(this, {58});
    m_shadow->setBlurRadius(shadowBlur);
    m_shadow->setOffset(0, 2);
    setGraphicsEffect(m_shadow);
}

void MiniTile::set(const QString& value, Role role) {
    if (value == m_value && role == m_role)
        return;
    m_value = value;
    m_role = role;
    m_shadow->setColor(Theme::tileColor(role, shadowOpacity));
    setAccessibleName(QStringLiteral("%1 %2").arg(m_title, m_value));
    update();
}

void MiniTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::mirror(painter, *this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(rect().topLeft(), rect().bottomRight());
    gradient.setColorAt(0, Theme::tileColor(m_role));
    gradient.setColorAt(1, Theme::tileColor(m_role, 0.78));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black); // so that white can be read on the lighter end, whatever is below the widget
    painter.drawRoundedRect(rect(), Theme::cardRadius, Theme::cardRadius);
    painter.setBrush(gradient);
    painter.drawRoundedRect(rect(), Theme::cardRadius, Theme::cardRadius);

    QRectF line = QRectF(rect()).adjusted(12, 9, -12, 0);
    painter.setFont(Theme::font(TextStyle::caption2, QFont::Bold));
    painter.setPen(QColor(255, 255, 255, 217));
    line.setHeight(QFontMetricsF(painter.font()).height());
    Painting::drawElided(painter, line, Qt::ElideRight, m_title);

    line.translate(0, line.height() + 2);
    QFont font = Theme::font(TextStyle::title, QFont::Black);
    const double natural = Painting::tabularWidth(font, m_value);
    if (natural > line.width())
        font.setPointSizeF(font.pointSizeF() * std::max(0.5, line.width() / natural));
    painter.setFont(font);
    painter.setPen(Qt::white);
    line.setBottom(rect().bottom() - 6);
    Painting::drawTabular(painter, line, Qt::AlignLeft, m_value);
}
