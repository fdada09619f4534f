#include "Cli/Program.h"

#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Cli/TextWidth.h"

#include <QCommandLineParser>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QList<QCommandLineOption> commonOptions() {
    return {{u"json"_s, u"write JSON"_s},
            {u"local"_s, u"do not ask the running Tavrin"_s},
            {u"no-cpu"_s, u"do not wait for the loads of processors"_s},
            {u"help"_s, u"print this help"_s}};
}

QString optionLine(const QCommandLineOption& option) {
    const QString value = option.valueName().isEmpty() ? QString() : u' ' + option.valueName();
    const QString name = u"--"_s + option.names().constFirst() + value;
    return u"  "_s + TextWidth::padded(name, 20, false) + option.description() + u'\n';
}

QString helpText(const QList<Command>& commands) {
    QString text = u"Usage: tavrinctl COMMAND [OPTION]...\n"
                   "Shows what holds the memory and the disk, and gives them back.\n\n"_s;
    for (const Command& command : commands)
        text += u"  "_s + TextWidth::padded(command.name + u' ' + command.arguments, 26, false) +
                command.summary + u'\n';
    text += u"\nWith every command:\n"_s;
    for (const QCommandLineOption& option : commonOptions())
        text += optionLine(option);
    return text + u"\nSee tavrinctl COMMAND --help, and tavrinctl(1).\n"_s;
}

QString helpText(const Command& command) {
    const QString arguments = command.arguments.isEmpty() ? QString() : u' ' + command.arguments;
    QString text =
        u"Usage: tavrinctl %1%2 [OPTION]...\n%3.\n\n"_s.arg(command.name, arguments, command.summary);
    for (const QCommandLineOption& option : command.options + commonOptions())
        text += optionLine(option);
    return text;
}

int status(ExitStatus status, const Output& output) {
    return static_cast<int>(output.isWritten() ? status : ExitStatus::unwritten);
}

int misuse(Output& output, const QString& what) {
    output.complain(what + u" (see tavrinctl --help)"_s);
    return static_cast<int>(ExitStatus::misuse);
}

int runCommand(const Environment& environment, const Command& command, const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions(command.options + commonOptions());
    const bool isUnderstood = parser.parse(QStringList(u"tavrinctl"_s) + arguments);
    Output output(environment.terminal, parser.isSet(u"json"_s), environment.wantsColour);
    if (!isUnderstood)
        return misuse(output, command.name + u": "_s + parser.errorText().remove(u'\n'));
    if (parser.isSet(u"help"_s)) {
        output.printText(helpText(command));
        return status(ExitStatus::done, output);
    }
    const qsizetype count = parser.positionalArguments().size();
    if (count < command.minArguments)
        return misuse(output, u"%1: %2 is missing"_s.arg(command.name, command.arguments));
    if (count > command.maxArguments)
        return misuse(output, u"%1: unexpected argument '%2'"_s.arg(
                                  command.name, parser.positionalArguments().at(command.maxArguments)));
    Machine machine(environment,
                    {.isDirect = parser.isSet(u"local"_s), .hasCpu = !parser.isSet(u"no-cpu"_s)});
    Run run{environment, parser, parser.positionalArguments(), machine, output};
    const ExitStatus result = command.run(run);
    return status(result, output);
}

} // namespace

int Program::run(const Environment& environment, const QStringList& arguments) {
    const QList<Command> commands = Commands::all();
    const QString name = arguments.value(0);
    Output output(environment.terminal, false, environment.wantsColour);
    if (name == "--help"_L1 || name == "help"_L1) {
        output.printText(helpText(commands));
        return status(ExitStatus::done, output);
    }
    if (name == "--version"_L1) {
        output.printText(u"tavrinctl "_s + environment.version + u'\n');
        return status(ExitStatus::done, output);
    }
    const auto command = std::ranges::find(commands, name, &Command::name);
    if (command == commands.end())
        return misuse(output, name.isEmpty() ? u"no command"_s : u"no command '%1'"_s.arg(name));
    return runCommand(environment, *command, arguments.mid(1));
}
