#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The Tavrin that runs for the user, as another program asks it.
class RunningProgram {
public:
    virtual ~RunningProgram() = default;

    /// Returns a document as JSON, empty when no program runs or it does not answer within half a second. The
    /// first question may take two seconds, where nothing that leads to the program answers. Starts none.
    virtual std::optional<QByteArray> report(const QString& kind) = 0;
};
