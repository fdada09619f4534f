#include "UI/Cleanup/CleanupConfirmation.h"

#include "Core/Formatters.h"
#include "Core/Translations.h"
#include "UI/Cleanup/CleanupPreview.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Kit/ConfirmDialog.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize previewSize(600, 340);

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

void CleanupConfirmation::askAll(
    QWidget* parent, QObject* owner, CacheCleanup& cleanup, const QList<CacheTarget>& targets, Instant now,
    const std::function<void(const QList<CacheTarget>&, const QStringList& leftOut)>& clean) {
    auto* dialog = new ConfirmDialog(
        parent, QCoreApplication::translate("CleanupConfirmation", "Clean all reclaimable caches?"),
        CleanupTexts::questionAll(targets));
    auto* preview = new CleanupPreview(cleanup, targets, CleanupChoice::Levels::ofTargets, now);
    preview->setFixedSize(Theme::scaled(previewSize));
    dialog->addContent(preview);
    auto* button = dialog->addAction({}, PushButton::Look::destructive);
    const auto refresh = [preview, button] {
        button->setText(QCoreApplication::translate("CleanupConfirmation", "Clean %1")
                            .arg(Formatters::bytes(preview->sum().bytes)));
        button->setEnabled(preview->sum().bytes > 0 && !preview->isEmpty());
    };
    refresh();
    QObject::connect(preview, &CleanupPreview::changed, button, refresh);
    QObject::connect(button, &QPushButton::clicked, owner,
                     [preview, clean] { clean(preview->chosen(), preview->leftOut()); });
    dialog->open();
}
