#include "UI/Overview/ReturnTexts.h"

#include "Core/Formatters.h"

#include <QCoreApplication>

QString ReturnTexts::promise(const MemoryReturn& back) {
    const QString size = Formatters::bytes(back.totalBytes());
    return back.isRough ? QCoreApplication::translate("ReturnTexts", "≤ %1 will come back").arg(size)
                        : QCoreApplication::translate("ReturnTexts", "≈ %1 will come back").arg(size);
}

QString ReturnTexts::outcome(const MemoryReturn& promised, quint64 freedBytes, quint64 freedSwapBytes) {
    return QCoreApplication::translate(
               "ReturnTexts", "Promised: %1 in memory, %2 in swap. Came back: %3 in memory, %4 in swap.")
        .arg(Formatters::bytes(promised.memoryBytes), Formatters::bytes(promised.swapBytes),
             Formatters::bytes(freedBytes), Formatters::bytes(freedSwapBytes));
}
