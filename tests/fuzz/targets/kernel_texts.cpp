#include "Core/Sessions/AgentTable.h"
#include "Platform/Linux/ControlGroup.h"
#include "Platform/Linux/Environment.h"
#include "Platform/Linux/LinuxListeningPorts.h"
#include "Platform/Linux/LinuxMemoryKills.h"
#include "Platform/Linux/LinuxPressure.h"
#include "Platform/Linux/LinuxProcessMemory.h"
#include "fuzz/Fuzz.h"

#include <algorithm>
#include <string>

namespace {

void memory(std::string_view text) {
    const ProcessMemoryUse use = LinuxProcessMemory::parseRollup(text);
    const std::string twice = std::string(text) + '\n' + std::string(text);
    Fuzz::require(LinuxProcessMemory::parseRollup(twice) == use);
    const ProcessMemoryUse totals = LinuxProcessMemory::parseStatus(text);
    Fuzz::require(!totals.proportionalBytes && !totals.proportionalDirtyBytes);
    if (const auto level = LinuxPressure::level(text))
        Fuzz::require(level->some >= 0 && level->some <= 100 && level->full >= 0 && level->full <= 100);
}

void controlGroup(const QByteArray& text) {
    static_cast<void>(ControlGroup::keeper(text));
    const QByteArray path = ControlGroup::path(text);
    Fuzz::require(path.isEmpty() || (text.contains(path) && !path.contains('\n')));
    Fuzz::require(ControlGroup::mainPid(text) >= 0);
}

void environment(const QByteArray& text) {
    const QHash<QByteArray, QByteArray> found = Environment::variables(text, AgentTable::variables());
    for (auto one = found.begin(); one != found.end(); ++one) {
        Fuzz::require(AgentTable::variables().contains(one.key()));
        Fuzz::require(text.contains(one.key() + '=' + one.value()) && !one.value().contains('\0'));
    }
    if (const auto mark = AgentTable::markIn(found))
        Fuzz::require(!mark->agent.isEmpty() && !mark->id.isEmpty() && mark->id.size() <= 128);
}

void sockets(const QByteArray& text) {
    QList<ListeningSocket> all;
    // The kernel's answer is read in place, and the fuzzer's input may be at any address.
    const std::string copy = text.toStdString();
    static_cast<void>(LinuxListeningPorts::take({copy.data(), copy.size()}, all));
    const auto answered = all.size();
    for (const QByteArray& line : text.split('\n'))
        static_cast<void>(LinuxListeningPorts::appendListening(line.toStdString(), all));
    Fuzz::require(all.size() - answered <= text.count('\n') + 1);
}

} // namespace

/// The text of a file of the kernel, the environment of a process, or lines of the journal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text = Fuzz::bytes(data, size);
    memory(text.toStdString());
    controlGroup(text);
    environment(text);
    sockets(text);
    const QList<RecordedKill> kills = LinuxMemoryKills::parse(QString::fromUtf8(text));
    Fuzz::require(std::ranges::all_of(kills, [](const RecordedKill& kill) { return kill.pid >= 0; }));
    return 0;
}
