#pragma once

#include "Core/RawValue.h"

#include <QString>

#include <array>

/// Groups of processes that matter on a developer's machine, in the order in which they are listed. The
/// raw value is the label on screen.
enum class ProcGroup { agents, ides, terminals, browsers, containers, other };

template <>
inline constexpr std::array rawValueTable<ProcGroup> = {
    RawValueRow<ProcGroup>{ProcGroup::agents, u"Claude Code & Agents"},
    RawValueRow<ProcGroup>{ProcGroup::ides, u"IDEs"},
    RawValueRow<ProcGroup>{ProcGroup::terminals, u"Terminals"},
    RawValueRow<ProcGroup>{ProcGroup::browsers, u"Browsers"},
    RawValueRow<ProcGroup>{ProcGroup::containers, u"Docker & Containers"},
    RawValueRow<ProcGroup>{ProcGroup::other, u"Other"},
};

/// Name of the group's symbol, under resources/symbols.
QString groupSymbol(ProcGroup group);
