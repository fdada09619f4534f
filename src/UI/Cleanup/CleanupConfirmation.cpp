#include "UI/Cleanup/CleanupConfirmation.h"

#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/SizeList.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int maxListHeight = 300;

SizeList* listOf(const QList<CacheTarget>& targets) {
    auto* list = new SizeList(QCoreApplication::translate("CleanupConfirmation", "What goes"));
    QStringList spoken;
    for (const CacheTarget& target : targets) {
        const SizeList::Row row{.name = Translations::of(target.name),
                                .figure = Formatters::bytes(target.sizeBytes),
                                .detail = CleanupTexts::whatGoes(target),
                                .isGrave = CleanupTexts::takesUserFiles(target)};
        list->addRow(row);
        spoken.append(row.name + u", "_s + row.figure);
    }
    list->setAccessibleDescription(spoken.join(u"; "_s));
    list->fit(ConfirmDialog::textWidth, maxListHeight);
    return list;
}

} // namespace

void CleanupConfirmation::ask(QWidget* parent, QObject* owner, const CacheTarget& target,
                              const std::function<void()>& clean) {
    auto* dialog = new ConfirmDialog(
        parent,
        QCoreApplication::translate("CleanupConfirmation", "Delete %1?").arg(Translations::of(target.name)),
        CleanupTexts::question(target));
    auto* remove = dialog->addAction(QCoreApplication::translate("CleanupConfirmation", "Delete %1")
                                         .arg(Formatters::bytes(target.sizeBytes)),
                                     PushButton::Look::destructive);
    QObject::connect(remove, &QPushButton::clicked, owner, clean);
    dialog->open();
}

void CleanupConfirmation::askAll(QWidget* parent, QObject* owner, const QList<CacheTarget>& targets,
                                 const std::function<void(const QList<CacheTarget>&)>& clean) {
    auto* dialog = new ConfirmDialog(
        parent, QCoreApplication::translate("CleanupConfirmation", "Clean all reclaimable caches?"),
        CleanupTexts::questionAll(targets));
    dialog->addContent(listOf(targets));
    auto* button = dialog->addAction(QCoreApplication::translate("CleanupConfirmation", "Clean %1")
                                         .arg(Formatters::bytes(CleanupPlan::totalBytes(targets))),
                                     PushButton::Look::destructive);
    QObject::connect(button, &QPushButton::clicked, owner, [targets, clean] { clean(targets); });
    dialog->open();
}
