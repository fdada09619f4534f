#pragma once

#include "Platform/Log.h"

/// The logging categories of the rooms.
namespace Log {

Q_DECLARE_LOGGING_CATEGORY(cleanup) ///< "tavrin.cleanup"
Q_DECLARE_LOGGING_CATEGORY(mcp)     ///< "tavrin.mcp"
Q_DECLARE_LOGGING_CATEGORY(feed)    ///< "tavrin.feed"

} // namespace Log
