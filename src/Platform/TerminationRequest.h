#pragma once

#include <QObject>

/// Receives requests to end the program, as when the session closes or on Ctrl+C. A signal that was ignored
/// when the program started stays ignored. One per program.
class TerminationRequest : public QObject {
    Q_OBJECT

public:
    explicit TerminationRequest(QObject* parent = nullptr);

Q_SIGNALS:
    /// Emitted on the main loop. A second request of the same kind kills the program.
    void received();
};
