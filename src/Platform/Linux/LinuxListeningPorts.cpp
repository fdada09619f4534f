#include "Platform/Linux/LinuxListeningPorts.h"

#include "Platform/Linux/KernelText.h"

#include <QScopeGuard>

#include <arpa/inet.h>
#include <dirent.h>
#include <linux/inet_diag.h>
#include <linux/netlink.h>
#include <linux/sock_diag.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <fstream>
#include <utility>

namespace {

constexpr unsigned listenState = 10; // TCP_LISTEN in the kernel's net/tcp_states.h
constexpr std::string_view listening = "0A";
constexpr std::string_view socketLink = "socket:[";

std::string_view takeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    return word;
}

/// Appends the listening sockets of a family. Returns false when the kernel does not tell.
bool ask(int socket, quint8 family, QList<ListeningSocket>& sockets) {
    struct {
        nlmsghdr header;
        inet_diag_req_v2 request;
    } message{};
    message.header = {.nlmsg_len = sizeof(message),
                      .nlmsg_type = SOCK_DIAG_BY_FAMILY,
                      .nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP};
    message.request = {
        .sdiag_family = family, .sdiag_protocol = IPPROTO_TCP, .idiag_states = 1U << listenState};
    if (send(socket, &message, sizeof(message), 0) < 0)
        return false;
    alignas(nlmsghdr) std::array<char, 16 << 10> room;
    while (true) {
        const ssize_t length = recv(socket, room.data(), room.size(), 0);
        if (length <= 0)
            return false;
        using Answer = LinuxListeningPorts::Answer;
        const Answer answer =
            LinuxListeningPorts::take({room.data(), static_cast<std::size_t>(length)}, sockets);
        if (answer != Answer::goesOn)
            return answer == Answer::complete;
    }
}

QList<ListeningSocket> readTables(const std::string& root) {
    QList<ListeningSocket> sockets;
    for (const char* name : {"/net/tcp", "/net/tcp6"}) {
        std::ifstream file(root + name);
        std::string line;
        std::getline(file, line); // the heads
        while (std::getline(file, line) && LinuxListeningPorts::appendListening(line, sockets)) {
        }
    }
    return sockets;
}

} // namespace

LinuxListeningPorts::LinuxListeningPorts(std::string root)
    : m_root(std::move(root))
    , m_asksKernel(false) {}

QList<ListeningSocket> LinuxListeningPorts::sockets() {
    if (m_asksKernel) {
        if (const auto answer = askKernel())
            return *answer;
        m_asksKernel = false; // refused in some sandboxes and by some kernels
    }
    return readTables(m_root);
}

std::optional<QList<ListeningSocket>> LinuxListeningPorts::askKernel() {
    const int socket = ::socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_SOCK_DIAG);
    if (socket < 0)
        return std::nullopt;
    const auto closing = qScopeGuard([socket] { close(socket); });
    QList<ListeningSocket> sockets;
    for (const quint8 family : {AF_INET, AF_INET6}) {
        if (!ask(socket, family, sockets))
            return std::nullopt;
    }
    return sockets;
}

LinuxListeningPorts::Answer LinuxListeningPorts::take(std::span<const char> answer,
                                                      QList<ListeningSocket>& sockets) {
    int left = static_cast<int>(answer.size());
    for (auto* header = reinterpret_cast<const nlmsghdr*>(answer.data()); NLMSG_OK(header, left);
         header = NLMSG_NEXT(header, left)) {
        if (header->nlmsg_type == NLMSG_DONE)
            return Answer::complete;
        if (header->nlmsg_type != SOCK_DIAG_BY_FAMILY ||
            header->nlmsg_len < NLMSG_LENGTH(sizeof(inet_diag_msg)))
            return Answer::refused;
        const auto* found = static_cast<const inet_diag_msg*>(NLMSG_DATA(header));
        sockets.append(
            {.id = found->idiag_inode, .uid = found->idiag_uid, .port = ntohs(found->id.idiag_sport)});
    }
    return Answer::goesOn;
}

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
