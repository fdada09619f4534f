#pragma once

#include <functional>

class QObject;
class QString;

/// Opens a folder in the desktop's file manager, when its file system has answered. A file in its place,
/// which that would run, stays closed. Calls `failed` when nothing was opened, unless `receiver` is gone by
/// then.
void openFolder(QObject* receiver, const QString& path, const std::function<void()>& failed);
