#pragma once

#include "Core/RawValue.h"

#include <QString>

#include <array>

/// The groups of processes on a developer's machine, in their order. The raw value is the label on screen.
enum class ProcGroup { agents, ides, terminals, browsers, containers, other };

template <>
inline constexpr std::array rawValueTable<ProcGroup> = {
    RawValueRow{ProcGroup::agents, QT_TRANSLATE_NOOP("Translations", "Claude Code & Agents")},
    RawValueRow{ProcGroup::ides, QT_TRANSLATE_NOOP("Translations", "IDEs")},
    RawValueRow{ProcGroup::terminals, QT_TRANSLATE_NOOP("Translations", "Terminals")},
    RawValueRow{ProcGroup::browsers, QT_TRANSLATE_NOOP("Translations", "Browsers")},
    RawValueRow{ProcGroup::containers, QT_TRANSLATE_NOOP("Translations", "Docker & Containers")},
    RawValueRow{ProcGroup::other, QT_TRANSLATE_NOOP("Translations", "Other")},
};

/// Returns the name of the group's symbol under resources/symbols.
inline QString groupSymbol(ProcGroup group) {
    constexpr QStringView symbols[] = {u"sparkles",    u"chevron.left.forwardslash.chevron.right",
                                       u"terminal",    u"globe",
                                       u"shippingbox", u"square.grid.2x2"};
    return symbols[static_cast<int>(group)].toString();
}
