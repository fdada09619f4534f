#include "UI/Cleanup/LeftoverTexts.h"

#include "Core/Formatters.h"
#include "UI/Cleanup/CleanupTexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

QString LeftoverTexts::pathOf(const QByteArray& path) {
    const QString whole = QFile::decodeName(path);
    const QString home = QDir::homePath();
    const bool isInHome = whole == home || whole.startsWith(home + u'/');
    return Formatters::visible(isInHome ? u'~' + whole.mid(home.size()) : whole);
}

QString LeftoverTexts::folders(const LeftoverProject& project) {
    QStringList names;
    for (const Leftover& folder : project.folders)
        names.append(Formatters::visible(QFile::decodeName(folder.path.mid(project.path.size() + 1))));
    return Formatters::list(names);
}

QString LeftoverTexts::lastUse(const LeftoverProject& project, Instant now) {
    if (!project.lastUse)
        return QCoreApplication::translate("LeftoverTexts", "unknown");
    return Formatters::ago(std::chrono::duration<double>(now - *project.lastUse).count());
}

QString LeftoverTexts::note(const LeftoverProject& project) {
    if (!project.users.isEmpty())
        return QCoreApplication::translate("LeftoverTexts", "in use by %1")
            .arg(Formatters::visible(Formatters::list(project.users)));
    if (project.changes == LeftoverProject::Changes::uncommitted)
        return QCoreApplication::translate("LeftoverTexts", "uncommitted changes");
    return {};
}

bool LeftoverTexts::matches(const LeftoverProject& project, const QString& search) {
    for (const QString& text : {pathOf(project), folders(project), note(project)}) {
        if (text.contains(search, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

QString LeftoverTexts::progress(const ProjectLeftovers& leftovers) {
    const ProjectLeftovers::Progress& progress = leftovers.progress();
    QStringList parts;
    if (leftovers.isSearching()) {
        parts.append(
            QCoreApplication::translate("LeftoverTexts", "%n project(s) found", nullptr, progress.found));
        if (!progress.folder.isEmpty())
            parts.append(
                QCoreApplication::translate("LeftoverTexts", "Looking in %1").arg(pathOf(progress.folder)));
    } else if (leftovers.isRemoving()) {
        parts.append(QCoreApplication::translate("CleanupTexts", "%1 of %2")
                         .arg(Formatters::bytes(progress.bytes), Formatters::bytes(progress.totalBytes)));
        if (!progress.folder.isEmpty())
            parts.append(
                QCoreApplication::translate("LeftoverTexts", "Removing %1").arg(pathOf(progress.folder)));
    }
    return parts.join(u" • "_s);
}

QString LeftoverTexts::outcome(const ProjectLeftovers::Removal& removal) {
    const QString freed = Formatters::bytes(removal.freedBytes);
    const QString text =
        removal.wasCancelled
            ? QCoreApplication::translate("LeftoverTexts", "Stopped: removed %n folder(s), freed ~%1",
                                          nullptr, removal.folders)
            : QCoreApplication::translate("LeftoverTexts", "Removed %n folder(s), freed ~%1", nullptr,
                                          removal.folders);
    const QString cameBack = CleanupTexts::cameBack(removal.volumeBytes);
    return text.arg(freed) + (cameBack.isEmpty() ? QString() : u" • "_s + cameBack);
}
