#include "Core/Sampling/ProcessFilter.h"

#include "Platform/Identity.h"

namespace {

constexpr int bitsOfMiB = 20;
constexpr double firstUnrepresentableMiB = 0x1p44; // 2^64 bytes

} // namespace

ProcessFilter::ProcessFilter(const Identity& identity, double minIdleMin, double minRSSMB)
    : m_userId(identity.userId())
    , m_ownPid(identity.processId())
    , m_minIdleSeconds(minIdleMin * 60)
    , m_minRssBytes(bytesFromMiB(minRSSMB)) {}

bool ProcessFilter::accepts(const ProcSample& process) const {
    return process.uid == m_userId && process.pid != m_ownPid && process.idleSeconds >= m_minIdleSeconds &&
           m_minRssBytes && process.rssBytes >= *m_minRssBytes;
}

std::optional<quint64> ProcessFilter::bytesFromMiB(double mebibytes) {
    if (!(mebibytes > -1 && mebibytes < firstUnrepresentableMiB))
        return std::nullopt;
    return static_cast<quint64>(mebibytes) << bitsOfMiB;
}
