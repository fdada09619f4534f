#pragma once

#include <QList>
#include <QString>

/// A folder that stands for a path of the cleanup catalogue.
struct Place {
    QString path;
    QString objection = {}; ///< why nothing in it may be deleted, as a sentence for the user; else empty

    bool operator==(const Place&) const = default;
};

/// Where this system keeps what a path of the cleanup catalogue names.
class Places {
public:
    virtual ~Places() = default;

    /// The absolute paths that `path` ("/..." or "~/...") stands for: the path itself with the home folder
    /// put in; where nothing exists there, or where this system keeps the same kind of thing besides, the
    /// places that it has for it and that do exist. Empty when there is no home folder to put in, so that
    /// nothing is ever looked up or deleted relative to an unset one; and never, but with an objection, the
    /// home folder itself or a folder that holds it.
    virtual QList<Place> locate(const QString& path) const = 0;
};
