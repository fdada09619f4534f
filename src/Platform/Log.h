#pragma once

#include <QLoggingCategory>

/// Failures that the screen does not show, for a trace that a user can send. Silent unless QT_LOGGING_RULES
/// asks for it. Paths of the user and names and arguments of processes are logged at debug level only.
namespace Log {

Q_DECLARE_LOGGING_CATEGORY(platform) ///< "tavrin.platform": what the system refuses, and our own files
Q_DECLARE_LOGGING_CATEGORY(relief)   ///< "tavrin.relief"

} // namespace Log
