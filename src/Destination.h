#pragma once

#include "Core/RawValue.h"

#include <array>

/// What another program or the command line can have opened: a section of the main window, or a dialog.
enum class Destination { overview, optimize, processes, cleanup, sessions, freeRAM, settings };

template <>
inline constexpr std::array rawValueTable<Destination> = {
    RawValueRow{Destination::overview, u"overview"},   RawValueRow{Destination::optimize, u"optimize"},
    RawValueRow{Destination::processes, u"processes"}, RawValueRow{Destination::cleanup, u"cleanup"},
    RawValueRow{Destination::sessions, u"sessions"},   RawValueRow{Destination::freeRAM, u"free-ram"},
    RawValueRow{Destination::settings, u"settings"},
};
