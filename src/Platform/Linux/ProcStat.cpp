#include "Platform/Linux/ProcStat.h"

#include "Platform/Linux/KernelText.h"

#include <algorithm>
#include <array>
#include <limits>

std::optional<ProcStat> ProcStat::parse(std::string_view text) {
    // The name in parentheses is unescaped: it may contain blanks, newlines and parentheses.
    const auto nameStart = text.find('(') + 1;
    const auto nameEnd = text.rfind(')');
    if (nameStart == 0 || nameEnd == std::string_view::npos || nameEnd < nameStart ||
        text.size() < nameEnd + 4)
        return std::nullopt;
    const auto name = text.substr(nameStart, nameEnd - nameStart);
    text.remove_prefix(nameEnd + 3); // ") S"

    // Numbered as in proc(5).
    enum { ppid = 4, session = 6, terminal = 7, flags = 9, utime = 14, stime = 15 };
    enum { threads = 20, starttime = 22, vsize = 23, rss = 24, end };
    std::array<qint64, end> field{};
    for (int number = ppid; number < end; ++number) {
        const auto value = KernelText::takeSignedNumber(text);
        if (!value)
            return std::nullopt;
        field[number] = *value;
    }
    return ProcStat{
        .name = QByteArray(name.data(), static_cast<qsizetype>(name.size())),
        .parentPid = static_cast<qint32>(field[ppid]),
        .session = static_cast<qint32>(field[session]),
        .terminal = static_cast<qint32>(field[terminal]),
        .flags = static_cast<quint32>(field[flags]),
        .cpuTicks = static_cast<quint64>(field[utime]) + static_cast<quint64>(field[stime]),
        .threads = static_cast<int>(std::clamp<qint64>(field[threads], 0, std::numeric_limits<int>::max())),
        .startTicks = static_cast<quint64>(field[starttime]),
        .virtualBytes = static_cast<quint64>(field[vsize]),
        .residentPages = static_cast<quint64>(field[rss])};
}

std::optional<ProcStat> ProcStat::read(const KernelFile& file) {
    std::array<char, 1024> buffer;
    return parse(file.read(buffer));
}
