#include "Core/Memory/MemoryLineUp.h"

#include "Core/Formatters.h"
#include "Core/Memory/MemoryFigures.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString line(const char* part, const QString& figure) {
    return QCoreApplication::translate("MemoryLineUp", part).arg(figure);
}

QString line(const char* part, quint64 bytes) {
    return line(part, Formatters::bytes(bytes));
}

} // namespace

MemoryLineUp MemoryLineUp::of(const SystemSample& sample, const QList<ProcSample>& processes,
                              quint32 userId) {
    const quint64 programs = sample.memProgramBytes.value_or(0);
    MemoryLineUp lineUp{.usedBytes = sample.memUsedBytes,
                        .kernelBytes = sample.memUsedBytes - std::min(sample.memUsedBytes, programs),
                        .isKnown = sample.memProgramBytes && !processes.isEmpty()};
    for (const ProcSample& process : processes) {
        const ProcessMemoryUse use = process.memory ? process.memory->use : ProcessMemoryUse();
        const quint64 anonymous = use.anonymousBytes.value_or(0);
        if (process.uid == userId || use.proportionalBytes) {
            const quint64 share = use.proportionalBytes.value_or(anonymous);
            lineUp.groupBytes += share;
            lineUp.cacheBytes += share - std::min(share, use.proportionalDirtyBytes.value_or(share));
        } else {
            lineUp.otherBytes += anonymous;
        }
        lineUp.isKnown &= use != ProcessMemoryUse();
    }
    return lineUp;
}

qint64 MemoryLineUp::restBytes() const {
    return static_cast<qint64>(usedBytes) + static_cast<qint64>(cacheBytes) -
           static_cast<qint64>(groupBytes + otherBytes + kernelBytes);
}

QStringList MemoryLineUp::lines() const {
    if (!isKnown)
        return {};
    const qint64 rest = restBytes();
    const QString size = Formatters::bytes(static_cast<quint64>(std::abs(rest)));
    return {line(QT_TRANSLATE_NOOP("MemoryLineUp", "Groups %1"), groupBytes),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "of these, caches of files −%1"), cacheBytes),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Other users %1"), otherBytes),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Kernel %1"), kernelBytes),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Shared memory and the rest %1"),
                 rest < 0 ? u'−' + size : size),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Used %1"), usedBytes)};
}
