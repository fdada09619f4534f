#include "UI/Overview/DetailPage.h"

#include "AppModel.h"
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

using Theme::Role;

namespace {

constexpr Role seriesRoles[] = {Role::blue, Role::green,  Role::orange, Role::purple,
                                Role::red,  Role::yellow, Role::indigo, Role::gray};

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

void DetailPage::note(SeriesLog& log, const QStringList& names, const QList<double>& figures) {
    log.append(m_model.systemSample().timestamp, names, figures, m_model.historyLimit());
}

void DetailPage::draw(Graph* graph, const SeriesLog& log, bool isStacked, double top) {
    Graph::Data data{.times = log.times, .series = {}, .isStacked = isStacked, .top = top};
    for (qsizetype i = 0; i < log.names.size(); ++i)
        data.series.append({log.names[i], seriesRoles[i % std::ssize(seriesRoles)], log.values[i]});
    graph->set(std::move(data));
}

QList<double> DetailPage::historyTimes() const {
    QList<double> times;
    times.reserve(m_model.systemHistory().size());
    for (const SystemSample& sample : m_model.systemHistory())
        times.append(secondsOf(sample.timestamp));
    return times;
}
