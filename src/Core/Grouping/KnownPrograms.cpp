#include "Core/Grouping/KnownPrograms.h"

#include "Core/Grouping/KnownProgramsTable.h"
#include "Core/Sampling/ProgramPath.h"

#include <QList>

#include <algorithm>
#include <vector>

namespace {

using KnownPrograms::Program;
namespace Table = KnownPrograms::Table;

constexpr QStringView separator = u", ";

bool comesBefore(QStringView name, QStringView other) {
    return name.compare(other, Qt::CaseInsensitive) < 0;
}

/// Returns the programs by name, for a binary search.
const std::vector<Program>& programs() {
    static const std::vector<Program> sorted = [] {
        std::vector<Program> all;
        for (const Table::Row& row : Table::programs) {
            for (const QStringView name : row.names.split(separator))
                all.push_back({.name = name, .group = row.group, .hostsServers = row.hostsServers});
        }
        std::ranges::stable_sort(all, comesBefore, &Program::name);
        return all;
    }();
    return sorted;
}

/// Returns the program whose data folder, such as "~/.NAME", the path leads through; null without one.
const Program* ofHiddenFolder(QStringView path) {
    for (const QStringView folder : path.split(u'/', Qt::SkipEmptyParts)) {
        const Program* known = folder.startsWith(u'.') ? KnownPrograms::find(folder) : nullptr;
        if (known)
            return known;
    }
    return nullptr;
}

/// Returns whether the name matches a pattern, which may have "*" at either end.
bool fits(QStringView name, QStringView pattern) {
    const bool openStart = pattern.startsWith(u'*');
    const bool openEnd = pattern.endsWith(u'*');
    const QStringView text = pattern.sliced(openStart).chopped(openEnd);
    if (openStart && openEnd)
        return name.contains(text, Qt::CaseInsensitive);
    if (openStart)
        return name.endsWith(text, Qt::CaseInsensitive);
    if (openEnd)
        return name.startsWith(text, Qt::CaseInsensitive);
    return name.compare(text, Qt::CaseInsensitive) == 0;
}

} // namespace

const Program* KnownPrograms::find(QStringView name) {
    const auto found = std::ranges::lower_bound(programs(), name, comesBefore, &Program::name);
    return found != programs().end() && found->name.compare(name, Qt::CaseInsensitive) == 0 ? &*found
                                                                                            : nullptr;
}

const Program* KnownPrograms::of(const ProcSample& process) {
    for (const QStringView name :
         {QStringView(process.name), ProgramPath::lastComponent(process.executablePath),
          ProgramPath::scriptName(process.program), ProgramPath::packageName(process.program)}) {
        if (const Program* known = find(name))
            return known;
    }
    return ofHiddenFolder(process.executablePath);
}

bool KnownPrograms::onlySoundsLike(ProcGroup group, QStringView name) {
    for (const Table::FalseFriends& row : Table::falseFriends) {
        if (row.group != group)
            continue;
        for (const QStringView pattern : row.names.tokenize(separator)) {
            if (fits(name, pattern))
                return true;
        }
    }
    return false;
}
