#pragma once

#include <QString>
#include <QStringList>

/// Where this system keeps what a path of the cleanup catalogue names.
class Places {
public:
    virtual ~Places() = default;

    /// The absolute paths that `path` ("/..." or "~/...") stands for: the path itself with the home folder
    /// put in; where nothing exists there, the places that this system has for the same thing and that do
    /// exist. Empty when there is no home folder to put in, so that nothing is ever looked up or deleted
    /// relative to an unset one; and never the home folder itself or a folder that holds it.
    virtual QStringList locate(const QString& path) const = 0;

    /// Whether deleting everything inside `folder` would go on into another file system that is mounted
    /// there and can be written to. True as well when that cannot be found out.
    virtual bool reachesMount(const QString& folder) const = 0;
};
