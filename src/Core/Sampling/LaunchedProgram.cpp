#include "Core/Sampling/LaunchedProgram.h"

#include "Core/Sampling/ProgramPath.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace {

using LaunchedProgram::Reading;
using Arguments = std::span<const QString>;

/// How the words after a program's name are read.
enum class Reader {
    script,   ///< options, then a script; "-m" names a module, "-c" and "-e" contain the code
    shell,    ///< options, then a script; "-c" contains a command
    java,     ///< options, then a class; "-jar" names an archive
    package,  ///< options, then a package
    container ///< "run", options, then an image
};

struct Runner {
    QStringView name;
    Reader reader;
    QStringView optionsWithValue; ///< each between spaces
    QStringView verbs;            ///< one of them has to come first, unless it is empty
};

constexpr QStringView nodeOptions =
    u" -r --require --import --loader --experimental-loader -C --conditions --env-file --title --cwd ";
constexpr QStringView containerOptions = u" -a --add-host --annotation --attach --cap-add --cap-drop "
                                         u"--cgroup-parent --cidfile --cpus -c --cpu-shares "
                                         u"--device --dns --entrypoint -e --env --env-file --expose --gpus "
                                         u"--group-add -h --hostname --ip -l --label "
                                         u"--link --log-driver --log-opt --mac-address -m --memory --mount "
                                         u"--name --net --network --pid --platform -p "
                                         u"--publish --pull --restart --runtime --security-opt --shm-size "
                                         u"--stop-signal --tmpfs -u --user --userns "
                                         u"--ulimit -v --volume --volumes-from -w --workdir ";

constexpr std::array runners = {
    Runner{u"node", Reader::script, nodeOptions, u""},
    Runner{u"nodejs", Reader::script, nodeOptions, u""},
    Runner{u"bun", Reader::script, nodeOptions, u""},
    Runner{u"deno", Reader::script, u" -c --config --import-map --cert --lock ", u""},
    Runner{u"python", Reader::script, u" -W -X ", u""},
    Runner{u"pypy", Reader::script, u" -W -X ", u""},
    Runner{u"ruby", Reader::script, u" -r -I -C ", u""},
    Runner{u"perl", Reader::script, u"", u""},
    Runner{u"php", Reader::script, u" -c -d ", u""},
    Runner{u"java", Reader::java, u" -cp -classpath --class-path -p --module-path ", u""},
    Runner{u"sh", Reader::shell, u" -o -O ", u""},
    Runner{u"bash", Reader::shell, u" -o -O --rcfile --init-file ", u""},
    Runner{u"dash", Reader::shell, u" -o ", u""},
    Runner{u"zsh", Reader::shell, u" -o ", u""},
    Runner{u"fish", Reader::shell, u" -C --init-command ", u""},
    Runner{u"npx", Reader::package, u" -p --package -c --call -w --workspace --cache --registry ", u""},
    Runner{u"npx-cli", Reader::package, u" -p --package -c --call -w --workspace ", u""},
    Runner{u"npm", Reader::package, u" -p --package -c --call -w --workspace --prefix ", u" exec x "},
    Runner{u"npm-cli", Reader::package, u" -p --package -c --call -w --workspace --prefix ", u" exec x "},
    Runner{u"pnpm", Reader::package, u" --package -C --dir ", u" dlx exec "},
    Runner{u"yarn", Reader::package, u" -p --package ", u" dlx exec "},
    Runner{u"bunx", Reader::package, u" -p --package ", u""},
    Runner{u"uvx", Reader::package, u" --from --with -p --python --index-url -w --directory ", u""},
    Runner{u"pipx", Reader::package, u" --spec --python ", u" run "},
    Runner{u"docker", Reader::container, containerOptions, u" run "},
    Runner{u"podman", Reader::container, containerOptions, u" run "},
    Runner{u"nerdctl", Reader::container, containerOptions, u" run "},
};

bool containsWord(QStringView list, QStringView word) {
    return !word.isEmpty() && list.contains(QString(u' ' + word.toString() + u' '));
}

/// Returns "python" for "python3.11".
QStringView withoutVersion(QStringView name) {
    qsizetype end = name.size();
    while (end > 0 && (name[end - 1].isDigit() || name[end - 1] == u'.'))
        --end;
    return name.first(end);
}

const Runner* runnerNamed(QStringView fileName) {
    const QStringView plain = withoutVersion(ProgramPath::scriptName(fileName));
    const auto found = std::ranges::find(runners, plain, &Runner::name);
    return found == runners.end() ? nullptr : &*found;
}

constexpr int maxNesting = 4;

Reading readCommand(const QString& executable, Arguments arguments, int depth);

/// Returns the words after the option in front and its value.
Arguments afterOption(Arguments words, QStringView optionsWithValue) {
    const bool takesValue = containsWord(optionsWithValue, words.front());
    return words.subspan(std::min<size_t>(takesValue ? 2 : 1, words.size()));
}

/// Returns the words after all options.
Arguments afterOptions(Arguments words, QStringView optionsWithValue) {
    while (!words.empty() && words.front().startsWith(u'-') && words.front().size() > 1) {
        const bool isEnd = words.front() == "--"_L1;
        words = afterOption(words, optionsWithValue);
        if (isEnd)
            break;
    }
    return words;
}

Reading readScript(const Runner& runner, Arguments words, int depth) {
    while (!words.empty() && words.front().startsWith(u'-')) {
        const QString& option = words.front();
        if (option == "-m"_L1)
            return words.size() > 1 ? Reading{.program = words[1]} : Reading();
        if (option == "-c"_L1 || option == "-e"_L1 || option == "-p"_L1 || option == "--eval"_L1 ||
            option == "--print"_L1 || option == "-"_L1)
            return {};
        words = afterOption(words, runner.optionsWithValue);
    }
    if (words.empty())
        return {};
    const bool isRunVerb = runner.name == u"deno" || runner.name == u"bun";
    if (isRunVerb && words.front() == "x"_L1)
        return readCommand(u"bunx"_s, words, depth + 1);
    if (isRunVerb && words.front() == "run"_L1)
        return depth < maxNesting ? readScript(runner, words.subspan(1), depth + 1) : Reading();
    // A package runner is itself a script.
    const Runner* inner = runnerNamed(ProgramPath::lastComponent(words.front()));
    if (inner && inner->reader == Reader::package && depth < maxNesting)
        return readCommand(words.front(), words, depth + 1);
    return {.program = words.front(), .isScript = true};
}

/// Returns the words of a shell command, without assignments in front and without quotes.
QStringList commandWords(const QString& command) {
    QStringList words = command.simplified().split(u' ', Qt::SkipEmptyParts);
    while (!words.isEmpty() && (words.first() == "exec"_L1 || words.first() == "env"_L1 ||
                                (words.first().contains(u'=') && !words.first().startsWith(u'\''))))
        words.removeFirst();
    for (QString& word : words) {
        word.remove(u'"');
        word.remove(u'\'');
    }
    return words;
}

Reading readShell(const Runner& runner, Arguments words, int depth) {
    while (!words.empty() && words.front().startsWith(u'-')) {
        const QString& option = words.front();
        const bool isCommand = !option.startsWith("--"_L1) && option.endsWith(u'c');
        if (isCommand) {
            const QStringList command = words.size() > 1 ? commandWords(words[1]) : QStringList();
            if (command.isEmpty())
                return {};
            Reading reading =
                readCommand(command.first(), Arguments(command.constData(), command.size()), depth + 1);
            reading.isScript = false;
            reading.isLauncher = true;
            return reading;
        }
        words = afterOption(words, runner.optionsWithValue);
    }
    return words.empty() ? Reading() : Reading{.program = words.front(), .isScript = true};
}

Reading readJava(const Runner& runner, Arguments words) {
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "-jar"_L1 || words[i] == "-m"_L1 || words[i] == "--module"_L1)
            return i + 1 < words.size() ? Reading{.program = words[i + 1]} : Reading();
        if (!words[i].startsWith(u'-'))
            return {.program = words[i]};
        i += containsWord(runner.optionsWithValue, words[i]) ? 1 : 0;
    }
    return {};
}

/// Reads the options of a package or image, which are switches unless the table lists them with a value.
Reading readPackage(const Runner& runner, Arguments words) {
    if (!runner.verbs.isEmpty()) {
        words = afterOptions(words, runner.optionsWithValue);
        if (words.empty() || !containsWord(runner.verbs, words.front()))
            return {};
        words = words.subspan(1);
    }
    words = afterOptions(words, runner.optionsWithValue);
    return words.empty() ? Reading() : Reading{.program = words.front(), .isLauncher = true};
}

/// Reads `uv run COMMAND`, `uv tool run PACKAGE` and `uv tool uvx PACKAGE`.
Reading readUv(Arguments words, int depth) {
    constexpr QStringView options =
        u" --with --directory --project -p --python --from --index-url --env-file "
        u"--extra --group --with-requirements ";
    words = afterOptions(words, options);
    if (words.empty())
        return {};
    const bool isTool = words.front() == "tool"_L1;
    if (isTool)
        words = words.subspan(1);
    if (words.empty() || (words.front() != "run"_L1 && words.front() != "uvx"_L1))
        return {};
    words = afterOptions(words.subspan(1), options);
    if (words.empty())
        return {};
    Reading reading =
        isTool ? Reading{.program = words.front()} : readCommand(words.front(), words, depth + 1);
    reading.isScript = false;
    reading.isLauncher = true;
    return reading;
}

/// Reads a command line. `arguments` begins with the program's own name.
Reading readCommand(const QString& executable, Arguments arguments, int depth) {
    const QStringView file = ProgramPath::lastComponent(executable);
    const Arguments words = arguments.empty() ? arguments : arguments.subspan(1);
    const Reading itself{.program = executable};
    if (depth > maxNesting)
        return itself;
    Reading reading;
    if (file == u"uv") {
        reading = readUv(words, depth);
    } else if (const Runner* runner = runnerNamed(file)) {
        switch (runner->reader) {
        case Reader::script:
            reading = readScript(*runner, words, depth);
            break;
        case Reader::shell:
            reading = readShell(*runner, words, depth);
            break;
        case Reader::java:
            reading = readJava(*runner, words);
            break;
        case Reader::package:
        case Reader::container:
            reading = readPackage(*runner, words);
            break;
        }
    }
    return reading.program.isEmpty() ? itself : reading;
}

} // namespace

bool LaunchedProgram::isInterpreter(QStringView fileName) {
    const Runner* runner = runnerNamed(fileName);
    return runner && (runner->reader == Reader::script || runner->reader == Reader::shell ||
                      runner->reader == Reader::java);
}

/// Reads also a title in the place of the arguments, one text with spaces: "npm exec PACKAGE".
Reading LaunchedProgram::read(const QString& executable, const QStringList& arguments) {
    if (arguments.size() == 1 && arguments.first().contains(u' ')) {
        const QStringList title = arguments.first().split(u' ', Qt::SkipEmptyParts);
        const bool isOfProgram = !title.isEmpty() && runnerNamed(ProgramPath::lastComponent(title.first()));
        if (isOfProgram) {
            Reading reading = readCommand(title.first(), Arguments(title.constData(), title.size()), 0);
            if (reading.program == title.first())
                reading.program = executable; // the title does not name it
            return reading;
        }
    }
    const bool isUnknown = executable.isEmpty() && !arguments.isEmpty();
    return readCommand(isUnknown ? arguments.first() : executable,
                       Arguments(arguments.constData(), arguments.size()), 0);
}
