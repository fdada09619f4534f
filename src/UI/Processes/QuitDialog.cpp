#include "UI/Processes/QuitDialog.h"

#include "AppModel.h"
#include "UI/Kit/ConfirmDialog.h"

#include <QCoreApplication>

void QuitDialog::ask(QWidget* parent, AppModel& model, const ProcSample& process) {
    const QString title = QCoreApplication::translate("QuitDialog", "Quit %1?").arg(process.name);
    const QString text =
        QCoreApplication::translate("QuitDialog",
                                    "PID %1 holds %2. It is asked to end, and may lose what is not saved.")
            .arg(process.pid)
            .arg(SummedMemory::of({process}).text());
    auto* dialog = new ConfirmDialog(parent, title, text);
    auto* button = dialog->addAction(QCoreApplication::translate("QuitDialog", "Quit %1").arg(process.name),
                                     PushButton::Look::destructive);
    QObject::connect(button, &QPushButton::clicked, &model.actions(),
                     [&model, process] { model.actions().quitProcess(process); });
    dialog->open();
}
