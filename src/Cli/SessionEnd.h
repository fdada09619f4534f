#pragma once

#include "Cli/Command.h"

class AppModel;
struct SessionEnding;

/// Ends processes together: a session, or what ended ones left.
namespace SessionEnd {

/// Asks, ends and tells. `command` is the name in the document.
ExitStatus run(Run& run, const QString& command, AppModel& model, const SessionEnding& ending);

} // namespace SessionEnd
