#include "UI/Overview/IncidentDialog.h"

#include "Core/Formatters.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/SizeList.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Overview/Sparkline.h"
#include "UI/Style/Levels.h"

#include <QHBoxLayout>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length incidentWidth{460};
constexpr Theme::Length listHeight{260};
constexpr Theme::Length graphHeight{56};

QString clockTime(Instant at) {
    return Formatters::timeOfDay(secondsOf(at));
}

template <typename Read> QList<double> lineOf(const Incident& incident, Read read) {
    QList<double> values;
    for (const Moment& moment : incident.moments)
        values.append(read(moment));
    return values;
}

/// Returns "61% → 97%".
QString rangeOf(const QList<double>& values) {
    return values.isEmpty() ? QString()
                            : QStringLiteral("%1 → %2").arg(Formatters::percent(values.first()),
                                                            Formatters::percent(values.last()));
}

/// Returns what a process had when it was first among the largest.
std::optional<quint64> firstSize(const Incident& incident, const Moment::Process& process) {
    for (const Moment& moment : incident.moments) {
        const auto found = std::ranges::find_if(moment.largest, [&process](const Moment::Process& each) {
            return each.pid == process.pid && each.name == process.name;
        });
        if (found != moment.largest.end())
            return found->rssBytes;
    }
    return std::nullopt;
}

QString changeOf(const Incident& incident, const Moment::Process& process) {
    const quint64 first = firstSize(incident, process).value_or(process.rssBytes);
    if (process.rssBytes == first)
        return {};
    return process.rssBytes > first
               ? IncidentDialog::tr("%1 more than at first").arg(Formatters::bytes(process.rssBytes - first))
               : IncidentDialog::tr("%1 less than at first").arg(Formatters::bytes(first - process.rssBytes));
}

} // namespace

IncidentDialog::IncidentDialog(const Incident& incident, QWidget* parent)
    : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Details"));
    auto* title = (new TextLabel(TextStyle::title3, QFont::Bold))->wrapped();
    title->setPlainText(Formatters::visible(incident.title));
    auto* span = (new TextLabel(TextStyle::callout))->secondary();
    if (!incident.moments.isEmpty())
        span->setPlainText(
            tr("From %1 to %2")
                .arg(clockTime(incident.moments.first().at), clockTime(incident.moments.last().at)));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::sheetMargins);
    column->setSpacing(12);
    column->addWidget(title);
    column->addWidget(span);
    const auto memory = lineOf(incident, [](const Moment& moment) { return moment.memUsedPercent; });
    const auto pressure =
        lineOf(incident, [](const Moment& moment) { return moment.pressure.value_or(PressureLevel()).some; });
    const auto cpu = lineOf(incident, [](const Moment& moment) { return moment.cpuPercent; });
    column->addLayout(makeFigure(tr("Memory"), memory, Theme::color(Role::blue), rangeOf(memory)));
    if (std::ranges::any_of(pressure, [](double percent) { return percent > 0; }))
        column->addLayout(
            makeFigure(tr("Waited for memory"), pressure, Theme::color(Role::purple), rangeOf(pressure)));
    column->addLayout(makeFigure(tr("CPU"), cpu, Theme::color(Role::green), rangeOf(cpu)));
    column->addWidget(makeList(incident));
    auto* close = new PushButton(tr("Close"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    column->addWidget(close, 0, Qt::AlignRight);
    close->setFocus();
}

QLayout* IncidentDialog::makeFigure(const QString& name, const QList<double>& values, const QColor& color,
                                    const QString& range) {
    auto* label = (new TextLabel(TextStyle::caption))->secondary();
    label->setPlainText(name);
    auto* figures = new TextLabel(TextStyle::caption);
    figures->setPlainText(range);
    auto* head = new QHBoxLayout;
    head->addWidget(label, 1);
    head->addWidget(figures);
    auto* line = new Sparkline;
    Theme::fixHeight(line, graphHeight);
    line->set(values, color);
    line->setAccessibleName(QStringLiteral("%1 %2").arg(name, range));
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addLayout(head);
    column->addWidget(line);
    return column;
}

QWidget* IncidentDialog::makeList(const Incident& incident) {
    auto* list = new SizeList(tr("Largest processes then"));
    list->addHeading(tr("Largest processes then"));
    if (!incident.moments.isEmpty()) {
        for (const Moment::Process& process : incident.moments.last().largest)
            list->addRow({.name = QStringLiteral("%1 (%2)").arg(process.name, QString::number(process.pid)),
                          .figure = Formatters::bytes(process.rssBytes),
                          .detail = changeOf(incident, process)});
    }
    list->fit(incidentWidth, listHeight);
    return list;
}
