#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/CleanupProgress.h"

#include <utility>

/// The sentences of the cleanup screens. Names from outside have their control characters made visible and
/// are shortened in the middle.
namespace CleanupTexts {

/// "Cleaning NAME (1 of 3)", by a sentence such as "Cleaning %1 (%2 of %3)".
QString progress(const QString& sentence, const CleanupProgress& progress);

/// Whether a clean takes what does not come back by itself.
bool takesUserFiles(const CacheTarget& target);

/// What of the target goes, in a line: names, largest first, or the command. Empty when nothing is known.
QString whatGoes(const CacheTarget& target);

/// What is said before one target is cleaned; an empty line between paragraphs.
QString question(const CacheTarget& target);
/// The same before all of these are.
QString questionAll(const QList<CacheTarget>& targets);

/// What became of a run over `asked` targets, from what the model's cleanAll gave.
QString outcome(qsizetype asked, std::pair<int, quint64> cleaned, const CleanupReport& report);
/// The targets that were not cleaned to the end, and why. Empty when there is none.
QString unfinished(const CleanupReport& report);

} // namespace CleanupTexts
