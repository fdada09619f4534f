#pragma once

#include "Platform/Log.h"

/// The rooms' part of the trace.
namespace Log {

Q_DECLARE_LOGGING_CATEGORY(cleanup) ///< "tavrin.cleanup"
Q_DECLARE_LOGGING_CATEGORY(mcp)     ///< "tavrin.mcp"
Q_DECLARE_LOGGING_CATEGORY(feed)    ///< "tavrin.feed"

} // namespace Log
