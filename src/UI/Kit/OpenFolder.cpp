#include "UI/Kit/OpenFolder.h"

#include "Core/OnThread.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>

void openFolder(QObject* receiver, const QString& path, const std::function<void()>& failed) {
    constexpr auto patience = std::chrono::seconds(5);
    const std::function<bool()> look = [path] { return QFileInfo(path).isDir(); };
    onThread(look, patience)
        .then([receiver = QPointer(receiver), path, failed](std::optional<bool> isFolder) {
            if (!receiver)
                return;
            if (!isFolder.value_or(false) || !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
                failed();
        });
}
