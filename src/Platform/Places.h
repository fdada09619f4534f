#pragma once

#include <QList>
#include <QString>

/// A folder that stands for a path of the cleanup catalogue.
struct Place {
    QString path;
    QString objection = {}; ///< why nothing in it may be deleted, as a sentence for the user

    bool operator==(const Place&) const = default;
};

/// Maps paths of the cleanup catalogue and of the system's own targets to folders.
class Places {
public:
    virtual ~Places() = default;

    /// Returns the absolute paths that `path` ("/..." or "~/...") stands for. That is the path itself with
    /// "~" expanded. Where it does not exist, or the system keeps the same kind of files elsewhere too, it is
    /// the existing folders of the system. Returns an empty list when "~" cannot be expanded. The home folder
    /// and its parents are returned with an objection only.
    ///
    /// A path of the system's own targets may begin with "$NAME/" for the folder that a variable of the
    /// environment names, or its default, and contain "*" and "?" in names. The result is what exists of it.
    virtual QList<Place> locate(const QString& path) const = 0;

    /// Returns false for a path that only other systems have.
    virtual bool canExist(const QString&) const { return true; }
};
