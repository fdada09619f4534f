#pragma once

#include <QByteArray>

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

/// A process that the test starts; ended and reaped with this object. Both sides talk over a socket.
class Child {
public:
    /// Runs `body` in a forked process, with the descriptor of its end of the socket; leaving `body` ends it.
    explicit Child(const std::function<void(int)>& body);
    /// Runs `program` with the whole vector `arguments`, its standard input being the socket (so that a
    /// program which reads it waits). Returns once the program has taken over.
    Child(const std::string& program, const std::vector<std::string>& arguments);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    pid_t pid() const { return m_pid; }
    void tell(char command) const;
    /// Waits for the child to say so.
    char heard() const;
    void kill() const;
    /// Ends and reaps the process now.
    void end();
    /// Waits for `body` to be left; its exit status.
    int exitStatus();

private:
    pid_t m_pid = -1;
    int m_socket = -1;
};

/// A sleeping process under exactly this id, or a failure for want of the right to choose one.
pid_t cloneAs(pid_t pid);

/// What `command` prints.
QByteArray outputOf(const std::string& command);
/// How many descriptors this program has open.
int openDescriptors();
