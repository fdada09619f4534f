#include "DisplayGuard.h"

#include <QList>
#include <QMessageLogContext>
#include <QString>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int failureStatus = 1;

struct HeldMessage {
    QtMsgType type;
    const char* category; ///< lives as long as the program
    QString text;
};

QtMessageHandler before = nullptr;
QList<HeldMessage> held; ///< why each display could not be reached, and all else

void hold(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        std::fputs("tavrin: there is no display to open a window on; tavrinctl works without one\n", stderr);
        std::_Exit(failureStatus);
    }
    held.append({type, context.category, text});
}

} // namespace

DisplayGuard::DisplayGuard() {
    before = qInstallMessageHandler(hold);
}

DisplayGuard::~DisplayGuard() {
    qInstallMessageHandler(before);
    for (const HeldMessage& message : std::as_const(held))
        before(message.type, QMessageLogContext(nullptr, 0, nullptr, message.category), message.text);
    held.clear();
}
