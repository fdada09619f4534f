#pragma once

#include "Core/Cleanup/CacheTarget.h"

/// What several targets have in common: a folder inside another target's folder, or a file that two list.
namespace CleanupOverlap {

/// Returns the size of what the targets' listings name, with what several of them name once.
quint64 totalBytes(const QList<CacheTarget>& targets);

} // namespace CleanupOverlap
