#include "UI/Processes/EndDialog.h"

#include "AppModel.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/SizeList.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int maxListHeight = 260;

struct EndTexts {
    Q_DECLARE_TR_FUNCTIONS(EndDialog)

public:
    static QString title(const QList<ProcSample>& processes, bool force);
    static QString text(const QList<ProcSample>& processes, bool force);
    static QString button(qsizetype processes, bool force);
    static QString list() { return tr("Processes"); }
    static QString consequence(const AppModel& model, const ProtectedProcesses& guarded,
                               const ProcSample& process);
};

/// Returns what ends with a process that more depends on, empty for any other.
QString EndTexts::consequence(const AppModel& model, const ProtectedProcesses& guarded,
                              const ProcSample& process) {
    const auto reason = guarded.of(process.pid);
    if (!reason)
        return {};
    const auto below = descendantsOf(process, model.processes());
    const QString sentence = ProtectedProcesses::consequence(*reason);
    return below.isEmpty()
               ? sentence
               : tr("%1 %n process(es) run below it.", nullptr, static_cast<int>(below.size())).arg(sentence);
}

QString EndTexts::title(const QList<ProcSample>& processes, bool force) {
    if (processes.size() == 1)
        return (force ? tr("Force kill %1?") : tr("Quit %1?")).arg(processes.first().name);
    const int count = static_cast<int>(processes.size());
    return force ? tr("Force kill %n process(es)?", nullptr, count)
                 : tr("Quit %n process(es)?", nullptr, count);
}

QString EndTexts::text(const QList<ProcSample>& processes, bool force) {
    const QString memory = SummedMemory::of(processes).text();
    if (processes.size() > 1)
        return force ? tr("They hold %1. They end at once, and what is not saved is lost.").arg(memory)
                     : tr("They hold %1. They are asked to end, and may lose what is not saved.").arg(memory);
    const QString one = force ? tr("PID %1 holds %2. It ends at once, and what is not saved is lost.")
                              : tr("PID %1 holds %2. It is asked to end, and may lose what is not saved.");
    return one.arg(processes.first().pid).arg(memory);
}

QString EndTexts::button(qsizetype processes, bool force) {
    if (processes == 1)
        return force ? tr("Force kill") : tr("Quit");
    return (force ? tr("Force kill %1") : tr("Quit %1")).arg(processes);
}

} // namespace

bool EndDialog::isNeeded(const AppModel& model, const QList<ProcSample>& processes) {
    const ProtectedProcesses guarded = model.protectedProcesses();
    return processes.size() > 1 || std::ranges::any_of(processes, [&guarded](const ProcSample& process) {
               return guarded.contains(process.pid);
           });
}

void EndDialog::ask(QWidget* parent, const AppModel& model, const QList<ProcSample>& processes, bool force,
                    const std::function<void(const QList<ProcSample>&)>& end) {
    auto* dialog =
        new ConfirmDialog(parent, EndTexts::title(processes, force), EndTexts::text(processes, force));
    const ProtectedProcesses guarded = model.protectedProcesses();
    auto* list = new SizeList(EndTexts::list());
    for (const ProcSample& process : processes)
        list->addRow({.name = QStringLiteral("%1 (%2)").arg(process.name, QString::number(process.pid)),
                      .figure = SummedMemory::of({process}).text(),
                      .detail = EndTexts::consequence(model, guarded, process),
                      .isGrave = guarded.contains(process.pid)});
    list->fit(ConfirmDialog::textWidth, maxListHeight);
    dialog->addContent(list);
    auto* button =
        dialog->addAction(EndTexts::button(processes.size(), force), PushButton::Look::destructive);
    QObject::connect(button, &QPushButton::clicked, parent, [processes, end] { end(processes); });
    dialog->open();
}
