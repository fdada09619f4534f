#pragma once

#include "Core/Memory/MemoryReturn.h"

#include <QString>

/// The texts about what the machine gets back when processes end.
namespace ReturnTexts {

/// Returns "≈ 1.2 GB will come back", or a bound while a process is not read.
QString promise(const MemoryReturn& back);

/// Returns what was promised and what came back, in memory and in swap.
QString outcome(const MemoryReturn& promised, quint64 freedBytes, quint64 freedSwapBytes);

} // namespace ReturnTexts
