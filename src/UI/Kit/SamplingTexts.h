#pragma once

#include <QCoreApplication>

/// Why there is nothing of processes to show.
struct SamplingTexts {
    Q_DECLARE_TR_FUNCTIONS(SamplingTexts)

public:
    static QString nothing(bool isPaused) {
        return isPaused
                   ? tr("Processes are not read while power is low. “Pause sampling on Low Power Mode” in "
                        "the settings, under Sampling, changes that.")
                   : tr("The system lists no processes now. F5 reads them again.");
    }
};
