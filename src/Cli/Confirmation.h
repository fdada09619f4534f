#pragma once

#include "Cli/Command.h"

#include <QJsonObject>

#include <optional>

/// What stands between a command that ends or deletes something and its action.
namespace Confirmation {

/// Returns the options of such a command.
QList<QCommandLineOption> options();

/// What the action would do, and what it asks.
struct Plan {
    QJsonObject document; ///< lists what would go
    QString text;         ///< the same for people
    QString question;     ///< "End 3 processes?"
    bool isEmpty = false; ///< there is nothing to do
};

/// Returns an empty optional when the action may begin. Otherwise the plan has been shown, and the run ends
/// with the status: it was a dry run, there is nothing to do, or nobody agreed.
std::optional<ExitStatus> settle(Run& run, const Plan& plan);

} // namespace Confirmation
