#include "Cli/Program.h"
#include "fuzz/Fuzz.h"
#include "fuzz/ScriptedMachine.h"

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// These go on until they are ended.
bool isEndless(const QString& command) {
    return command == "watch"_L1 || command == "mcp"_L1;
}

/// Returns whether a terminal shows all of it, and obeys none of it.
bool isPrintable(const QByteArray& text) {
    return std::ranges::none_of(text, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte < ' ' && byte != '\n') || byte == 0x7f;
    });
}

} // namespace

/// The answer of a running program, then the arguments of tavrinctl, one on each line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QList<QByteArray> parts = Fuzz::texts(Fuzz::bytes(data, size), 2);
    const QStringList arguments = QString::fromUtf8(parts[1]).split(u'\n');
    if (isEndless(arguments.constFirst()))
        return 0;
    Fuzz::ScriptedMachine machine(parts[0]);
    const Environment environment = machine.environment();
    const int status = Program::run(environment, arguments);
    Fuzz::require(status >= 0 && status <= 3);
    Fuzz::require(status < 2 || !machine.errors().isEmpty());
    Fuzz::require(isPrintable(machine.output()) && isPrintable(machine.errors()));
    if (status == 0 && arguments.contains(u"--json"_s) && !arguments.contains(u"--help"_s))
        Fuzz::require(QJsonDocument::fromJson(machine.output()).isObject());
    if (!arguments.contains(u"--yes"_s))
        Fuzz::require(machine.signalsSent() == 0);
    return 0;
}
