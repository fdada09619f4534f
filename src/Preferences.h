#pragma once

#include "Core/RawValue.h"

#include <QByteArray>
#include <QObject>
#include <QSettings>

#include <array>

enum class MenuBarFormat { both, cpuOnly, ramOnly, iconOnly };

template <>
inline constexpr std::array rawValueTable<MenuBarFormat> = {
    RawValueRow<MenuBarFormat>{MenuBarFormat::both, u"CPU% \u2022 RAM%"},
    RawValueRow<MenuBarFormat>{MenuBarFormat::cpuOnly, u"CPU%"},
    RawValueRow<MenuBarFormat>{MenuBarFormat::ramOnly, u"RAM%"},
    RawValueRow<MenuBarFormat>{MenuBarFormat::iconOnly, u"Icon only"},
};

enum class HistoryRetention { fiveMin, twentyFive, oneHour };

template <>
inline constexpr std::array rawValueTable<HistoryRetention> = {
    RawValueRow<HistoryRetention>{HistoryRetention::fiveMin, u"5 min"},
    RawValueRow<HistoryRetention>{HistoryRetention::twentyFive, u"25 min"},
    RawValueRow<HistoryRetention>{HistoryRetention::oneHour, u"1 hour"},
};

/// How long a history of that retention spans, in seconds.
int spanSeconds(HistoryRetention retention);
