#include "UI/Overview/DetailPage.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Platform/MachineDetails.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Overview/CpuPage.h"
#include "UI/Overview/DiskPage.h"
#include "UI/Overview/MemoryPage.h"
#include "UI/Overview/ThermalPage.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include <utility>

using Theme::Role;

namespace {

constexpr Role seriesRoles[] = {Role::blue, Role::green, Role::orange, Role::purple,
                                Role::red,  Role::gray,  Role::indigo, Role::yellow};

} // namespace

DetailPage* DetailPage::make(Kind kind, AppModel& model, std::shared_ptr<MachineDetails> machine) {
    switch (kind) {
    case Kind::cpu:
        return new CpuPage(model, std::move(machine));
    case Kind::memory:
        return new MemoryPage(model, std::move(machine));
    case Kind::disk:
        return new DiskPage(model, std::move(machine));
    case Kind::thermal:
        break;
    }
    return new ThermalPage(model, std::move(machine));
}

DetailPage::DetailPage(const QString& title, AppModel& model, std::shared_ptr<MachineDetails> machine)
    : m_model(model)
    , m_machine(std::move(machine))
    , m_column(new QVBoxLayout(this)) {
    auto* back = new PushButton(tr("Back"), PushButton::Look::normal, QStringLiteral("chevron.left"));
    m_back = back;
    connect(back, &QPushButton::clicked, this, &DetailPage::left);
    auto* heading = new TextLabel(Theme::TextStyle::title3, QFont::Bold);
    heading->setPlainText(title);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::gridSpacing);
    row->addWidget(back);
    row->addWidget(heading, 1);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(Theme::gridSpacing);
    m_column->addLayout(row);
    setAccessibleName(title);
    refreshOnScreen(this, {&m_model}, [this] { refresh(); });
}

void DetailPage::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Back))
        Q_EMIT left();
    else
        QWidget::keyPressEvent(event);
}

void DetailPage::focusBack() {
    m_back->setFocus(Qt::OtherFocusReason);
}

Graph* DetailPage::addGraph(const QString& title, Graph::Unit unit) {
    auto* graph = new Graph(title, unit);
    m_column->addWidget(graph);
    return graph;
}

void DetailPage::hideEvent(QHideEvent* event) {
    m_wasAway = true;
    QWidget::hideEvent(event);
}

void DetailPage::note(const QStringList& names, const QList<double>& figures) {
    const Instant now = m_model.systemSample().timestamp;
    if (std::exchange(m_wasAway, false))
        m_log.interrupt(now, m_model.historyLimit());
    m_log.append(now, names, figures, m_model.historyLimit());
}

void DetailPage::drawNoted(Graph* graph) const {
    const QList<double>& times = m_log.history.times;
    QString note;
    if (!times.isEmpty())
        note = tr("since %1, while this page is open")
                   .arg(Formatters::timeOfDay(times.first(), QLocale::ShortFormat));
    graph->set({.times = times, .series = colored(m_log.names, m_log.history), .note = note});
}

QList<Graph::Series> DetailPage::colored(const QStringList& names, const FigureHistory& history) {
    QList<Graph::Series> series;
    for (qsizetype i = 0; i < std::min(names.size(), history.values.size()); ++i)
        series.append({names[i], seriesRoles[i % std::ssize(seriesRoles)], history.values[i]});
    return series;
}

QList<double> DetailPage::historyTimes() const {
    QList<double> times;
    times.reserve(m_model.systemHistory().size());
    for (const SystemSample& sample : m_model.systemHistory())
        times.append(secondsOf(sample.timestamp));
    return times;
}
