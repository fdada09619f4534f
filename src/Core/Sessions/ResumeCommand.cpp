#include "Core/Sessions/ResumeCommand.h"

#include "Core/Formatters.h"
#include "Core/Sampling/ProgramPath.h"
#include "Core/Sessions/AgentTable.h"
#include "Core/ShellWord.h"

#include <algorithm>

namespace {

/// Returns the folder with "~" for the user's home folder where the rest needs no quotes, which would hide
/// it.
QString folderWord(const QString& folder) {
    const QString shown = ProgramPath::withTilde(folder);
    const bool isPlain = shown == u"~" || (shown.startsWith(u'~') && isPlainShellWord(shown.sliced(1)));
    return isPlain ? shown : shellWord(folder);
}

} // namespace

QString resumeCommand(const QString& agent, const QString& folder) {
    const QString command = AgentTable::resumeCommand(agent);
    if (command.isEmpty() || folder.isEmpty() || std::ranges::any_of(folder, Formatters::isInvisible))
        return {};
    return QStringLiteral("cd %1 && %2").arg(folderWord(folder), command);
}
