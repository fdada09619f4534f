#include "Core/Log.h"

Q_LOGGING_CATEGORY(Log::cleanup, "tavrin.cleanup", QtFatalMsg)
Q_LOGGING_CATEGORY(Log::mcp, "tavrin.mcp", QtFatalMsg)
Q_LOGGING_CATEGORY(Log::feed, "tavrin.feed", QtFatalMsg)
