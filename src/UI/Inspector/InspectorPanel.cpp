#include "UI/Inspector/InspectorPanel.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Platform/Applications.h"
#include "UI/Inspector/FieldList.h"
#include "UI/Inspector/InspectorTexts.h"
#include "UI/Inspector/MemoryKindsBar.h"
#include "UI/Kit/ClampedLabel.h"
#include "UI/Kit/Graph.h"
#include "UI/Kit/Pressed.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Kit/SizeList.h"
#include "UI/Kit/SymbolView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QPointer>

#include <utility>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr int panelMargin = 12;
constexpr Theme::Length headSymbolSize{24};
constexpr Theme::Length listWidth{250};
constexpr Theme::Length maxOpenHeight{220};
constexpr int maxCommandLines = 8;
constexpr int maxNameLines = 1;

/// Returns the icon that a menu entry names, null where there is none.
QIcon iconOf(const std::optional<Application>& application) {
    const QString name = application ? application->icon : QString();
    const QIcon icon = name.contains(u'/') ? QIcon(name) : QIcon::fromTheme(name);
    return icon.pixmap(headSymbolSize).isNull() ? QIcon() : icon;
}

} // namespace

void ParentLink::set(const ProcSample& process) {
    m_process = process;
    setText(QStringLiteral("%1 (%2)").arg(Formatters::visible(process.name), QString::number(process.pid)));
}

InspectorPanel::InspectorPanel(AppModel& model, QWidget* parent)
    : QScrollArea(parent)
    , m_model(model)
    , m_body(new QWidget)
    , m_column(new QVBoxLayout(m_body))
    , m_icon(new SymbolView(headSymbolSize, headSymbolSize))
    , m_name(new ClampedLabel(maxNameLines, TextStyle::title3, QFont::Bold))
    , m_what((new TextLabel(TextStyle::callout))->secondary()->wrapped())
    , m_quit(new PushButton(tr("Quit")))
    , m_kill(new PushButton(tr("Force kill"), PushButton::Look::destructive))
    , m_cpu(new Graph(tr("CPU"), Graph::Unit::percent, Graph::Size::compact))
    , m_ram(new Graph(tr("Memory"), Graph::Unit::bytes, Graph::Size::compact))
    , m_kinds(new MemoryKindsBar)
    , m_fields(new FieldList)
    , m_command(new ClampedLabel(maxCommandLines, TextStyle::callout))
    , m_parents([this] {
        auto* link = new ParentLink(QString());
        connect(link, &QAbstractButton::clicked, this,
                [this, link] { Q_EMIT processRequested(link->process()); });
        m_parentsColumn->addWidget(link, 0, Qt::AlignLeft);
        return link;
    })
    , m_noParents((new TextLabel(TextStyle::callout))->secondary())
    , m_open((new TextLabel(TextStyle::callout))->wrapped())
    , m_showFiles(new PushButton(tr("Show files")))
    , m_showEnvironment(new PushButton(tr("Show environment"))) {
    setAccessibleName(tr("Details"));
    setFocusPolicy(Qt::NoFocus);
    layOut();
}

void InspectorPanel::layOut() {
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(12);
    layOutHead();
    layOutFigures();
    auto* identity = addSection(tr("Where it is from"));
    m_at.pid = m_fields->add(tr("PID"));
    m_at.user = m_fields->add(tr("User"));
    m_at.started = m_fields->add(tr("Started"));
    m_at.threads = m_fields->add(tr("Threads"));
    m_at.session = m_fields->add(tr("Session"));
    m_at.folder = m_fields->add(tr("Folder"));
    m_at.group = m_fields->add(tr("Control group"));
    identity->addWidget(m_fields);
    auto* command = addSection(tr("Command"));
    auto* copy = new PushButton(tr("Copy"), PushButton::Look::normal, QStringLiteral("doc.on.doc"));
    copy->setSmall();
    copy->setAccessibleName(tr("Copy the command"));
    connect(copy, &PushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_commandLine); });
    command->addWidget(m_command);
    command->addWidget(copy, 0, Qt::AlignLeft);
    m_parentsColumn = addSection(tr("Started from"));
    m_parentsColumn->setSpacing(Theme::textGap);
    m_noParents->setPlainText(tr("Its parents are not listed."));
    m_parentsColumn->addWidget(m_noParents);
    layOutOpen();
}

void InspectorPanel::layOutHead() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    auto* close = new IconButton(QStringLiteral("xmark"), tr("Close the details"));
    connect(close, &IconButton::clicked, this, &InspectorPanel::closed);
    row->addWidget(m_icon);
    row->addWidget(m_name, 1);
    row->addWidget(close);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::rowSpacing);
    buttons->addWidget(m_quit);
    buttons->addWidget(m_kill);
    buttons->addStretch();
    actOnPressed(m_quit, m_process,
                 [this](const ProcSample& process) { Q_EMIT endRequested(process, false); });
    actOnPressed(m_kill, m_process,
                 [this](const ProcSample& process) { Q_EMIT endRequested(process, true); });
    m_icon->set(QStringLiteral("list.bullet.rectangle"), Role::secondaryText);
    m_name->setPlainText(tr("Details"));
    m_what->setPlainText(tr("Choose a process in the table."));
    auto* page = makeScrollingPage(this, {panelMargin, panelMargin, panelMargin, panelMargin}, 12);
    page->addLayout(row);
    page->addWidget(m_what);
    page->addWidget(m_body);
    page->addStretch();
    m_body->hide();
    viewport()->setAutoFillBackground(false);
    widget()->setAutoFillBackground(false);
    m_column->addLayout(buttons);
}

void InspectorPanel::layOutFigures() {
    m_column->addWidget(m_cpu);
    m_column->addWidget(m_ram);
    m_column->addWidget(m_kinds);
}

void InspectorPanel::layOutOpen() {
    m_openColumn = addSection(tr("Open"));
    m_openColumn->addWidget(m_open);
    m_openColumn->addWidget(m_showFiles, 0, Qt::AlignLeft);
    m_showFiles->setSmall();
    connect(m_showFiles, &PushButton::clicked, this, &InspectorPanel::showFiles);
    m_environmentColumn = addSection(tr("Environment"));
    m_environmentColumn->addWidget(m_showEnvironment, 0, Qt::AlignLeft);
    m_showEnvironment->setSmall();
    connect(m_showEnvironment, &PushButton::clicked, this, [this] { readEnvironment(m_process.identity()); });
}

QVBoxLayout* InspectorPanel::addSection(const QString& title) {
    auto* heading = (new TextLabel(TextStyle::caption, QFont::DemiBold))->secondary();
    heading->setPlainText(title);
    auto* section = new QVBoxLayout;
    section->setSpacing(Theme::rowSpacing / 2);
    section->addWidget(heading);
    m_column->addLayout(section);
    return section;
}

bool InspectorPanel::isOn(const ProcessIdentity& process) const {
    return m_process.identity() == process;
}

void InspectorPanel::setProcess(const ProcSample& process) {
    if (isOn(process.identity()))
        return;
    m_process = process;
    m_body->show();
    m_model.memoryLedger().wantAsked({process.pid});
    m_iconOf.clear();
    forgetDetails();
    refresh();
}

/// Drops what was read of the process before.
void InspectorPanel::forgetDetails() {
    m_inspection.reset();
    delete std::exchange(m_files, nullptr);
    delete std::exchange(m_environment, nullptr);
    m_showEnvironment->show();
    m_showEnvironment->setText(tr("Show environment"));
}

void InspectorPanel::refresh() {
    if (m_process.pid == 0 || !isVisible())
        return;
    const ProcSample* current = m_model.process(m_process.pid);
    m_hasEnded = !current || current->identity() != m_process.identity();
    if (!m_hasEnded) {
        m_process = *current;
        m_history.note(m_process, m_model.systemSample().timestamp);
        m_model.memoryLedger().wantOnShow({m_process.pid});
        m_model.wantSessions();
        inspect(m_process.identity());
    }
    showFigures();
    showHistory();
    showFields();
    showParents();
    showInspection();
}

/// Shows the icon of the application, else the symbol of the group. The application is asked for once for
/// each program that the process runs.
void InspectorPanel::showIcon() {
    m_icon->set(groupSymbol(m_process.group), Role::secondaryText);
    const QString program = QStringLiteral("%1 %2").arg(m_process.pid).arg(m_process.executablePath);
    if (!m_hasEnded && std::exchange(m_iconOf, program) != program)
        m_icon->setIcon(iconOf(m_model.facts().application(m_process.pid)));
}

void InspectorPanel::showFigures() {
    showIcon();
    m_name->setPlainText(m_process.name);
    m_name->setToolTip(Formatters::toolTip(m_process.executablePath));
    m_what->setPlainText(
        m_hasEnded ? tr("It has ended.")
                   : InspectorTexts::whatItIs(m_model, m_process, m_inspection ? &*m_inspection : nullptr));
    m_quit->setEnabled(!m_hasEnded);
    m_kill->setEnabled(!m_hasEnded);
    m_showEnvironment->setEnabled(!m_hasEnded);
    m_quit->setAccessibleName(tr("Quit %1").arg(m_process.name));
    m_kill->setAccessibleName(tr("Force kill %1").arg(m_process.name));
    MemoryKindsBar::Kinds kinds{.residentBytes = m_process.rssBytes};
    if (m_process.memory) {
        const ProcessMemoryUse& use = m_process.memory->use;
        kinds.ownBytes = use.uniqueBytes;
        if (use.uniqueBytes && m_process.rssBytes >= *use.uniqueBytes)
            kinds.sharedBytes = m_process.rssBytes - *use.uniqueBytes;
        kinds.swapBytes = use.swapBytes;
    }
    m_kinds->set(kinds);
}

void InspectorPanel::showHistory() {
    QList<double> times, cpu, ram;
    for (const InspectedHistory::Point& point : m_history.of(m_process.identity())) {
        times.append(secondsOf(point.at));
        cpu.append(point.cpuPercent);
        ram.append(static_cast<double>(point.rssBytes));
    }
    m_cpu->set({.times = times, .series = {{QString(), Role::green, cpu}}, .isStacked = true});
    m_ram->set({.times = times, .series = {{QString(), Role::blue, ram}}, .isStacked = true});
}

void InspectorPanel::showFields() {
    m_fields->set(m_at.pid, QString::number(m_process.pid));
    m_fields->set(m_at.user, m_model.facts().userName(m_process.uid));
    m_fields->set(m_at.started, InspectorTexts::started(m_process, m_model.systemSample().timestamp));
    m_fields->set(m_at.threads, QString::number(m_process.threads));
    m_fields->set(m_at.session, InspectorTexts::sessionOf(m_model, m_process));
}

void InspectorPanel::showParents() {
    const QList<ProcSample> parents = InspectorTexts::parentsOf(m_model, m_process);
    m_parents.show(parents.size(),
                   [&parents](ParentLink& link, qsizetype place) { link.set(parents[place]); });
    m_noParents->setVisible(parents.isEmpty());
}

void InspectorPanel::showInspection() {
    const bool isKnown = m_inspection.has_value();
    m_fields->set(m_at.folder, isKnown ? m_inspection->folder : QString());
    m_fields->set(m_at.group, isKnown ? m_inspection->controlGroup : QString());
    m_commandLine = isKnown ? m_inspection->command : QString();
    if (m_commandLine.isEmpty())
        m_commandLine = QString(m_process.executablePath + u' ' + m_process.arguments).trimmed();
    m_command->setPlainText(m_commandLine);
    const bool hasFiles = isKnown && m_inspection->fileCount;
    m_showFiles->setVisible(hasFiles && !m_files);
    QStringList open;
    if (hasFiles)
        open.append(tr("%n open file(s)", nullptr, *m_inspection->fileCount));
    if (isKnown && !m_inspection->ports.isEmpty())
        open.append(tr("listens on %1").arg(InspectorTexts::ports(m_inspection->ports)));
    if (isKnown && !hasFiles)
        open.append(tr("Unknown: the system tells it only of your own processes."));
    const QString unread = m_hasEnded ? tr("Unknown: it has ended.") : tr("Being read…");
    m_open->setPlainText(isKnown ? Formatters::list(open) : unread);
}

void InspectorPanel::showFiles() {
    if (m_files || !m_inspection || !m_inspection->fileCount)
        return;
    m_files = new SizeList(tr("Open files"));
    for (const QString& file : std::as_const(m_inspection->files))
        m_files->addRow({.name = file});
    if (*m_inspection->fileCount > m_inspection->files.size())
        m_files->addLine(tr("The first %1 are listed.").arg(m_inspection->files.size()));
    m_files->fit(listWidth, maxOpenHeight);
    m_openColumn->addWidget(m_files);
    const bool isScrolled = m_files->focusPolicy() & Qt::TabFocus;
    (isScrolled ? static_cast<QWidget*>(m_files) : m_showEnvironment)->setFocus(Qt::OtherFocusReason);
    m_showFiles->hide();
}

QCoro::Task<> InspectorPanel::inspect(ProcessIdentity process) {
    if (m_isInspecting)
        co_return;
    m_isInspecting = true;
    const QPointer<InspectorPanel> self(this);
    const auto seen = co_await m_model.facts().inspect(process.pid);
    if (!self)
        co_return;
    m_isInspecting = false;
    if (!isOn(process)) {
        inspect(m_process.identity()); // another was chosen meanwhile
        co_return;
    }
    if (seen && !m_hasEnded) {
        m_inspection = seen;
        showFigures();
        showInspection();
    }
}

QCoro::Task<> InspectorPanel::readEnvironment(ProcessIdentity process) {
    const QPointer<InspectorPanel> self(this);
    const auto variables = co_await m_model.facts().environment(process.pid);
    if (!self || !isOn(process) || m_environment || m_hasEnded)
        co_return;
    if (!variables) {
        m_showEnvironment->setText(tr("The system refuses it"));
        co_return;
    }
    m_environment = new SizeList(tr("Environment"));
    for (const EnvironmentVariable& variable : *variables)
        m_environment->addRow(
            {.name = variable.name,
             .detail = variable.isSecret ? tr("hidden, as it may be a secret") : variable.value});
    if (variables->isEmpty())
        m_environment->addLine(tr("It is empty."));
    m_environment->fit(listWidth, maxOpenHeight);
    m_environmentColumn->addWidget(m_environment);
    if (m_showEnvironment->hasFocus())
        m_environment->setFocus(Qt::OtherFocusReason);
    m_showEnvironment->hide();
}
