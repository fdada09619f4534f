#pragma once

#include <QLoggingCategory>

/// What goes wrong without a word on screen, for a trace that a user can send. Silent unless QT_LOGGING_RULES
/// asks for it. No path of the user's, and no name or argument of a process, above the level of debugging.
namespace Log {

Q_DECLARE_LOGGING_CATEGORY(platform) ///< "tavrin.platform": what the system refuses, and our own files
Q_DECLARE_LOGGING_CATEGORY(relief)   ///< "tavrin.relief"

} // namespace Log
