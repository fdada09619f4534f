#pragma once

#include <QObject>

/// The system, or whoever started the program, asks it to end: the session closes, a terminal's interrupt
/// key was pressed. A request that was ignored when the program started stays so. One per program.
class TerminationRequest : public QObject {
    Q_OBJECT

public:
    explicit TerminationRequest(QObject* parent = nullptr);

Q_SIGNALS:
    /// On the main loop. A second request before the first was obeyed ends the program the hard way.
    void received();
};
