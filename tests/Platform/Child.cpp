#include "Platform/Child.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/sched.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <utility>

Child::Child(const std::function<void(int)>& body) {
    int sockets[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets) != 0)
        return;
    m_pid = fork();
    if (m_pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        close(sockets[0]);
        body(sockets[1]);
        _exit(0);
    }
    close(sockets[1]);
    m_socket = sockets[0];
}

Child::Child(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<char*> vector;
    for (const auto& argument : arguments)
        vector.push_back(const_cast<char*>(argument.c_str()));
    vector.push_back(nullptr);
    int input[2];
    int running[2]; // closed by the exec
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, input) != 0 || pipe2(running, O_CLOEXEC) != 0)
        return;
    m_pid = fork();
    if (m_pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        dup2(input[1], STDIN_FILENO);
        execv(program.c_str(), vector.data());
        _exit(127);
    }
    close(input[1]);
    close(running[1]);
    char nothing = 0;
    static_cast<void>(!read(running[0], &nothing, 1));
    close(running[0]);
    m_socket = input[0];
}

Child::~Child() {
    end();
    close(m_socket);
}

void Child::tell(char command) const {
    static_cast<void>(!write(m_socket, &command, 1));
}

char Child::heard() const {
    char word = 0;
    return read(m_socket, &word, 1) == 1 ? word : '\0';
}

void Child::kill() const {
    ::kill(m_pid, SIGKILL);
}

void Child::end() {
    if (m_pid > 0) {
        kill();
        waitpid(m_pid, nullptr, 0);
        m_pid = -1;
    }
}

int Child::exitStatus() {
    int status = -1;
    if (m_pid > 0)
        waitpid(std::exchange(m_pid, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

pid_t cloneAs(pid_t pid) {
    clone_args arguments{};
    arguments.exit_signal = SIGCHLD;
    arguments.set_tid = reinterpret_cast<std::uint64_t>(&pid);
    arguments.set_tid_size = 1;
    const auto clone = static_cast<pid_t>(syscall(SYS_clone3, &arguments, sizeof arguments));
    if (clone == 0) {
        alarm(60);
        for (;;)
            pause();
    }
    return clone;
}

QByteArray outputOf(const std::string& command) {
    QByteArray output;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        char room[4096];
        while (const auto length = fread(room, 1, sizeof room, pipe))
            output.append(room, static_cast<qsizetype>(length));
        pclose(pipe);
    }
    return output;
}

int openDescriptors() {
    int count = 0;
    if (DIR* folder = opendir("/proc/self/fd")) {
        while (readdir(folder))
            ++count;
        closedir(folder);
    }
    return count;
}
