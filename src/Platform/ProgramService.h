#pragma once

#include "Platform/Result.h"

#include <QByteArray>
#include <QVariantMap>

#include <functional>

/// What the running program tells other programs of its user, and what they may have it show. They can end
/// and delete nothing.
class ProgramService {
public:
    struct Answers {
        /// Returns a document as JSON, empty for an unknown kind.
        std::function<QByteArray(const QString& kind)> report;
        /// Opens a section or a dialog, and the window for an empty name. Returns false for an unknown one.
        std::function<bool(const QString& name)> show;
    };

    virtual ~ProgramService() = default;

    /// Begins to answer. Fails where programs cannot reach each other, and where another Tavrin answers
    /// already.
    virtual Outcome start(Answers answers) = 0;
    /// Replaces the figures, which are named as docs/dbus.md has them. Who listens is told of those that
    /// changed.
    virtual void publish(const QVariantMap& figures) = 0;
};
