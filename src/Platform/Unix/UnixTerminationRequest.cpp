#include "Platform/TerminationRequest.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

int pipeEnds[2] = {-1, -1}; ///< written by the signal handler, read by the main loop

void tellMainLoop(int) {
    const int error = errno;
    static_cast<void>(!write(pipeEnds[1], "t", 1));
    errno = error;
}

} // namespace

TerminationRequest::TerminationRequest(QObject* parent)
    : QObject(parent) {
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals keep their default action
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (read(pipeEnds[0], &byte, 1) == 1)
            Q_EMIT received();
    });
    struct sigaction action {};
    action.sa_handler = tellMainLoop;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction atStart {};
        sigaction(signal, &action, &atStart);
        if (atStart.sa_handler == SIG_IGN) // nohup(1) and shells mean it
            sigaction(signal, &atStart, nullptr);
    }
}
