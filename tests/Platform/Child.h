#pragma once

#include <QByteArray>

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

/// A child process, ended and reaped with this object. Both sides talk over a socket.
class Child {
public:
    /// Runs `body` in a forked process with its descriptor of the socket; the process ends with `body`.
    explicit Child(const std::function<void(int)>& body);
    /// Runs `program` with the vector `arguments` and the socket as standard input. Returns after exec(2).
    Child(const std::string& program, const std::vector<std::string>& arguments);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    pid_t pid() const { return m_pid; }
    void tell(char command) const;
    /// Waits for a character from the child.
    char heard() const;
    void kill() const;
    /// Kills and reaps the process.
    void end();
    /// Waits for the process and returns its exit status.
    int exitStatus();

private:
    pid_t m_pid = -1;
    int m_socket = -1;
};

/// Starts a sleeping process with this PID. Returns a value below 0 without the right to choose one.
pid_t cloneAs(pid_t pid);

QByteArray outputOf(const std::string& command);
/// Returns the number of this program's open descriptors.
int openDescriptors();
