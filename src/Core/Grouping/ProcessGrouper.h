#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QHash>

#include <utility>

/// Puts every process into one of the six groups: by the user's choice for its program, then by fixed rules
/// on its name, path and arguments, then by the table of known programs.
class ProcessGrouper {
public:
    using Choices = QHash<QString, ProcGroup>; ///< by `programKey`

    /// Returns the group for a name, path, arguments and program. The other fields are not read.
    ProcGroup groupOf(const ProcSample& process) const;

    void setChoices(Choices choices) { m_choices = std::move(choices); }

    /// Returns what identifies a program to a user: the package or the script that is run, else the name of
    /// the executable.
    static QString programKey(const ProcSample& process);

private:
    Choices m_choices;
};
