#include "Core/Sessions/ResumeCommand.h"

#include "Core/Sampling/ProgramPath.h"
#include "Core/Sessions/AgentTable.h"

#include <algorithm>

namespace {

bool isPlain(QChar character) {
    return character.isLetterOrNumber() || QStringView(u"/._-+@,:").contains(character);
}

QString quoted(const QString& folder) {
    const QString shown = ProgramPath::withTilde(folder);
    const QStringView rest = QStringView(shown).sliced(shown.startsWith(u'~') ? 1 : 0);
    if (std::ranges::all_of(rest, isPlain))
        return shown;
    return u'\'' + QString(folder).replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

bool isControl(QChar character) {
    return character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
}

} // namespace

QString resumeCommand(const QString& agent, const QString& folder) {
    const QString command = AgentTable::resumeCommand(agent);
    if (command.isEmpty() || folder.isEmpty() || std::ranges::any_of(folder, isControl))
        return {};
    return QStringLiteral("cd %1 && %2").arg(quoted(folder), command);
}
