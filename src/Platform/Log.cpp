#include "Platform/Log.h"

Q_LOGGING_CATEGORY(Log::platform, "tavrin.platform", QtFatalMsg)
Q_LOGGING_CATEGORY(Log::relief, "tavrin.relief", QtFatalMsg)
