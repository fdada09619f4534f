#include "Platform/Linux/LinuxListeningPorts.h"

#include "Platform/Linux/KernelText.h"

#include <QScopeGuard>

#include <dirent.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <fstream>
#include <utility>

namespace {

constexpr std::string_view listening = "0A"; // TCP_LISTEN
constexpr std::string_view socketLink = "socket:[";

std::string_view takeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    return word;
}

} // namespace

LinuxListeningPorts::LinuxListeningPorts(std::string root)
    : m_root(std::move(root)) {}

// "  0: 0100007F:1F90 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000        0 50321 1 …"
bool LinuxListeningPorts::appendListening(std::string_view line, QList<ListeningSocket>& sockets) {
    takeWord(line); // its number
    const std::string_view address = takeWord(line);
    takeWord(line); // the other end
    if (takeWord(line) != listening)
        return false;
    for (int queues = 0; queues < 3; ++queues)
        takeWord(line); // queues, timer, retransmissions
    const auto uid = KernelText::takeNumber(line);
    const auto timeout = uid ? KernelText::takeNumber(line) : std::nullopt;
    const auto id = timeout ? KernelText::takeNumber(line) : std::nullopt;
    const std::string_view hex = address.substr(std::min(address.rfind(':') + 1, address.size()));
    quint16 port = 0;
    const auto parsed = std::from_chars(hex.data(), hex.data() + hex.size(), port, 16);
    if (id && parsed.ec == std::errc() && port != 0)
        sockets.append({.id = *id, .uid = static_cast<quint32>(*uid), .port = port});
    return true;
}

QList<ListeningSocket> LinuxListeningPorts::sockets() {
    QList<ListeningSocket> sockets;
    for (const char* name : {"/net/tcp", "/net/tcp6"}) {
        std::ifstream file(m_root + name);
        std::string line;
        std::getline(file, line); // the heads
        while (std::getline(file, line) && appendListening(line, sockets)) {
        }
    }
    return sockets;
}

QList<quint64> LinuxListeningPorts::socketsOf(qint32 pid) {
    DIR* folder = opendir((m_root + '/' + std::to_string(pid) + "/fd").c_str());
    if (!folder)
        return {};
    const auto closing = qScopeGuard([folder] { closedir(folder); });
    QList<quint64> ids;
    std::array<char, 64> room;
    while (const dirent* entry = readdir(folder)) {
        const auto length = readlinkat(dirfd(folder), entry->d_name, room.data(), room.size());
        std::string_view target(room.data(), length < 0 ? 0 : static_cast<std::size_t>(length));
        if (!target.starts_with(socketLink))
            continue;
        target.remove_prefix(socketLink.size());
        if (const auto id = KernelText::takeNumber(target))
            ids.append(*id);
    }
    return ids;
}
