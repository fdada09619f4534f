#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QHash>

#include <utility>

/// Puts every process into one of the six groups: the user's own choice for its program, then fixed rules on
/// its name, path and arguments, then what is known of single programs.
class ProcessGrouper {
public:
    using Choices = QHash<QString, ProcGroup>; ///< by `programKey`

    /// Goes by the name, path, arguments and program alone.
    ProcGroup groupOf(const ProcSample& process) const;

    void setChoices(Choices choices) { m_choices = std::move(choices); }

    /// What makes two processes the same program to a user: the package or the script that is run, else the
    /// name of the executable.
    static QString programKey(const ProcSample& process);

private:
    Choices m_choices;
};
