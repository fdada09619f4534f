#include "Core/Memory/SummedMemory.h"

#include "Core/Formatters.h"
#include "Core/Memory/MemoryFigures.h"

#include <QCoreApplication>

#include <algorithm>

void SummedMemory::add(const ProcSample& process) {
    residentBytes += process.rssBytes;
    const MemoryFigures* figures = process.memory.get();
    const bool isProportional = figures && figures->isProportional();
    const bool hasTotals = figures && figures->use.anonymousBytes;
    if (!isProportional)
        certainty =
            std::max(certainty, hasTotals && figures->isRefused ? Certainty::atLeast : Certainty::about);
    if (!hasTotals && !isProportional) {
        const quint64 standIn = process.anonymousBytes.value_or(process.rssBytes);
        bytes += standIn;
        standInBytes += standIn;
        return;
    }
    const ProcessMemoryUse& use = figures->use;
    const quint64 swap = use.proportionalSwapBytes.value_or(use.swapBytes.value_or(0));
    bytes += use.proportionalBytes.value_or(use.anonymousBytes.value_or(0)) + swap;
    swapBytes += swap;
}

SummedMemory SummedMemory::of(const QList<ProcSample>& processes) {
    SummedMemory sum;
    for (const ProcSample& process : processes)
        sum.add(process);
    return sum;
}

QString SummedMemory::text() const {
    const QString figure = Formatters::bytes(bytes);
    switch (certainty) {
    case Certainty::atLeast:
        return QStringLiteral("≥ %1").arg(figure);
    case Certainty::about:
        return QStringLiteral("≈ %1").arg(figure);
    case Certainty::exact:
        break;
    }
    return figure;
}

QString SummedMemory::parts() const {
    return QCoreApplication::translate("SummedMemory", "resident %1, in swap %2")
        .arg(Formatters::bytes(residentBytes), Formatters::bytes(swapBytes));
}

QString SummedMemory::description() const {
    const QString figure = Formatters::bytes(bytes);
    switch (certainty) {
    case Certainty::atLeast:
        return QCoreApplication::translate("SummedMemory", "at least %1 (%2)").arg(figure, parts());
    case Certainty::about:
        return QCoreApplication::translate("SummedMemory", "about %1 (%2)").arg(figure, parts());
    case Certainty::exact:
        break;
    }
    return QCoreApplication::translate("SummedMemory", "%1 (%2)").arg(figure, parts());
}
