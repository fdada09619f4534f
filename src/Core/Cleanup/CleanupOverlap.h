#pragma once

#include "Core/Cleanup/CacheTarget.h"

/// What several targets have in common: a folder inside another target's folder, or a file that two list.
namespace CleanupOverlap {

/// Fills in `sharedBytes`: what of each target another one of these has too, but for one that keeps it.
void mark(QList<CacheTarget>& targets);

/// Returns the size of all targets without their `sharedBytes`, which `mark` has filled in for these.
quint64 totalBytes(const QList<CacheTarget>& targets);

} // namespace CleanupOverlap
