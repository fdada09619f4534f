#pragma once

#include "Core/Sessions/Session.h"

#include <QString>

#include <variant>

class ProcessActions;
struct SessionEnding;

/// What a session left running, or servers that it runs twice: one row of the page.
struct Remains {
    std::variant<LeftOver, DuplicateServers> what;

    /// Returns a text that tells this row from all others, the same at every tick.
    QString key() const;
    /// Returns "Left by claude in ~/src/app".
    QString title() const;
    /// Returns "ended 14:02: 3 servers, 1 browser", with the day unless it is that of `now`.
    QString details(Instant now) const;
    QString symbol() const;
    /// Returns the text of the button that ends it.
    QString endText() const;
    const QList<SessionProcess>& processes() const;
    const SummedMemory& memory() const;
    QString agent() const;
    QString folder() const;
    SessionEnding ending(const ProcessActions& actions) const;

    bool operator==(const Remains&) const = default;
};

/// Returns a text that tells the process from all others.
QString keyOf(const ProcessIdentity& process);
