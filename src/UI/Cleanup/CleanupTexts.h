#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/CleanupProgress.h"

#include <utility>

/// The sentences of the cleanup screens. Names from outside have their control characters made visible and
/// are shortened in the middle.
namespace CleanupTexts {

/// Returns "Cleaning NAME (1 of 3) • 1 GB of 2 GB" for the sentence "Cleaning %1 (%2 of %3)".
QString progress(const QString& sentence, const CleanupProgress& progress);

/// Returns whether a clean removes what nothing rebuilds.
bool takesUserFiles(const CacheTarget& target);

/// Returns what a clean removes, in a line: names, the largest first, or the command. Empty when unknown.
QString whatGoes(const CacheTarget& target);

/// Returns the question before one target is cleaned, with an empty line between paragraphs.
QString question(const CacheTarget& target);
/// Returns the question before all of these are cleaned.
QString questionAll(const QList<CacheTarget>& targets);

/// Returns the outcome of a run over `asked` targets; `cleaned` is the result of CacheCleanup::cleanAll.
QString outcome(qsizetype asked, std::pair<int, quint64> cleaned, const CleanupReport& report);
/// Returns what came back on the disk beside what was removed. Empty when that is unknown.
QString cameBack(std::optional<qint64> volumeBytes);
/// Returns the targets that were not cleaned to the end, and why. Empty when there is none.
QString unfinished(const CleanupReport& report);

} // namespace CleanupTexts
