#include "Core/Memory/MemoryLineUp.h"

#include "Core/Formatters.h"
#include "Core/Memory/MemoryFigures.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

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
        const bool isRead = use != ProcessMemoryUse();
        const quint64 anonymous =
            use.anonymousBytes.value_or(isRead ? 0 : process.anonymousBytes.value_or(0));
        if (process.uid == userId || use.proportionalBytes) {
            const quint64 share = use.proportionalBytes.value_or(anonymous);
            lineUp.groupBytes += share;
            const quint64 dirty = use.proportionalDirtyBytes.value_or(share);
            lineUp.cacheBytes += share - std::min(share, dirty);
        } else {
            lineUp.otherBytes += anonymous;
        }
        lineUp.isKnown &= isRead || process.anonymousBytes;
        lineUp.isAbout |= !isRead;
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
    const QString groups = (isAbout ? u"≈ "_s : QString()) + Formatters::bytes(groupBytes);
    return {line(QT_TRANSLATE_NOOP("MemoryLineUp", "Groups %1"), groups),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "of these, caches of files −%1"), cacheBytes),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Other users %1"), otherBytes),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Kernel %1"), kernelBytes),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Shared memory and the rest %1"),
                 rest < 0 ? u'−' + size : size),
            line(QT_TRANSLATE_NOOP("MemoryLineUp", "Used %1"), usedBytes)};
}
