#pragma once

#include <QString>

/// Returns a shell's line that takes an agent's last conversation in a folder up again, such as
/// "cd ~/src/app && claude --continue". Empty for an unknown agent or folder, and for a folder whose name has
/// control characters.
QString resumeCommand(const QString& agent, const QString& folder);
