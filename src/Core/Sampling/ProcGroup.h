#pragma once

#include "Core/RawValue.h"

#include <QString>

#include <array>

/// The groups of processes on a developer's machine, in their order. The raw value is the label on screen.
enum class ProcGroup { agents, ides, terminals, browsers, containers, other };

template <>
inline constexpr std::array rawValueTable<ProcGroup> = {
    RawValueRow{ProcGroup::agents, u"Claude Code & Agents"},
    RawValueRow{ProcGroup::ides, u"IDEs"},
    RawValueRow{ProcGroup::terminals, u"Terminals"},
    RawValueRow{ProcGroup::browsers, u"Browsers"},
    RawValueRow{ProcGroup::containers, u"Docker & Containers"},
    RawValueRow{ProcGroup::other, u"Other"},
};

/// Returns the name of the group's symbol under resources/symbols.
inline QString groupSymbol(ProcGroup group) {
    switch (group) {
    case ProcGroup::agents:
        return QStringLiteral("sparkles");
    case ProcGroup::ides:
        return QStringLiteral("chevron.left.forwardslash.chevron.right");
    case ProcGroup::terminals:
        return QStringLiteral("terminal");
    case ProcGroup::browsers:
        return QStringLiteral("globe");
    case ProcGroup::containers:
        return QStringLiteral("shippingbox");
    case ProcGroup::other:
        return QStringLiteral("square.grid.2x2");
    }
    return {};
}
