#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QHash>

/// Puts every process into one of the six groups: the user's own choice for its program, then fixed rules on
/// its name, path and arguments, then what is known of single programs. What was found is kept as long as the
/// process shows the same texts.
class ProcessGrouper {
public:
    using Choices = QHash<QString, ProcGroup>; ///< by `programKey`

    /// The same records in the same order, each with its group. Hand the list over to spare a copy.
    QList<ProcSample> classify(QList<ProcSample> processes);

    /// What the user chose holds from the next `classify` on.
    void setChoices(Choices choices);

    /// What makes two processes the same program to a user: the package or the script that is run, else the
    /// name of the executable.
    static QString programKey(const ProcSample& process);

private:
    /// What one process was judged by. The texts are shared with the records of the process, so that the same
    /// ones are known again without being read.
    struct Judged {
        QString name;
        QString path;
        QString arguments;
        QString program;
        ProcGroup group = ProcGroup::other;

        bool isOf(const ProcSample& process) const;
    };

    ProcGroup groupFor(const ProcSample& process) const;
    void forgetTheGone(qsizetype living);

    Choices m_choices;
    QHash<qint32, Judged> m_judged; ///< by process id
};
