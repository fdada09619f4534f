#include "UI/Cleanup/LeaveOutOffer.h"

#include "Preferences.h"
#include "UI/Kit/ConfirmDialog.h"

#include <QCoreApplication>

namespace {

constexpr qsizetype maxRemembered = 300;
constexpr qsizetype maxNamed = 8;

/// Returns the pattern that matches this path alone.
QString patternOf(const QString& path) {
    QString pattern;
    for (const QChar c : path) {
        if (QStringLiteral("\\*?[").contains(c))
            pattern += u'\\';
        pattern += c;
    }
    return pattern;
}

QString question(const QStringList& paths) {
    QStringList paragraphs = paths.first(std::min(maxNamed, paths.size()));
    if (paths.size() > maxNamed)
        paragraphs.append(
            QCoreApplication::translate("LeaveOutOffer", "and %1 more").arg(paths.size() - maxNamed));
    return paragraphs.join(QStringLiteral("\n\n")) + QStringLiteral("\n\n") +
           QCoreApplication::translate("LeaveOutOffer",
                                       "You left this out twice. The Cleanup settings have the list.");
}

void ask(QWidget* parent, Preferences& preferences, const QStringList& paths) {
    auto* dialog = new ConfirmDialog(
        parent, QCoreApplication::translate("LeaveOutOffer", "Never clean this?"), question(paths));
    auto* button = dialog->addAction(QCoreApplication::translate("LeaveOutOffer", "Never Clean"),
                                     PushButton::Look::normal);
    QObject::connect(button, &QPushButton::clicked, dialog, [&preferences, paths] {
        QStringList excludes = preferences.cleanupExcludes();
        for (const QString& path : paths)
            excludes.append(patternOf(path));
        preferences.cleanupExcludes.set(excludes);
    });
    dialog->open();
}

} // namespace

void LeaveOutOffer::follow(QWidget* parent, Preferences& preferences, const QStringList& leftOut) {
    QStringList remembered = preferences.cleanupLeftOut();
    QStringList again;
    for (const QString& path : leftOut) {
        if (remembered.removeAll(path) > 0)
            again.append(path);
        else
            remembered.append(path);
    }
    if (again.isEmpty() && leftOut.isEmpty())
        return;
    preferences.cleanupLeftOut.set(remembered.last(std::min(maxRemembered, remembered.size())));
    if (!again.isEmpty())
        ask(parent, preferences, again);
}
