#include "Core/Sampling/LaunchedProgram.h"

#include "Core/Sampling/ProgramPath.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace {

using LaunchedProgram::Reading;
using Words = std::span<const QString>;

/// How the words after a program's name are read.
enum class Reader {
    script,   ///< options, then a script; "-m" names a module, "-c" and "-e" contain the code
    shell,    ///< options, then a script; "-c" contains a command
    java,     ///< options, then a class; "-jar" names an archive
    package,  ///< options, then a package
    container ///< "run", options, then an image
};

struct Program {
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

constexpr std::array programs = {
    Program{u"node", Reader::script, nodeOptions, u""},
    Program{u"nodejs", Reader::script, nodeOptions, u""},
    Program{u"bun", Reader::script, nodeOptions, u""},
    Program{u"deno", Reader::script, u" -c --config --import-map --cert --lock ", u""},
    Program{u"python", Reader::script, u" -W -X ", u""},
    Program{u"pypy", Reader::script, u" -W -X ", u""},
    Program{u"ruby", Reader::script, u" -r -I -C ", u""},
    Program{u"perl", Reader::script, u"", u""},
    Program{u"php", Reader::script, u" -c -d ", u""},
    Program{u"java", Reader::java, u" -cp -classpath --class-path -p --module-path ", u""},
    Program{u"sh", Reader::shell, u" -o -O ", u""},
    Program{u"bash", Reader::shell, u" -o -O --rcfile --init-file ", u""},
    Program{u"dash", Reader::shell, u" -o ", u""},
    Program{u"zsh", Reader::shell, u" -o ", u""},
    Program{u"fish", Reader::shell, u" -C --init-command ", u""},
    Program{u"npx", Reader::package, u" -p --package -c --call -w --workspace --cache --registry ", u""},
    Program{u"npx-cli", Reader::package, u" -p --package -c --call -w --workspace ", u""},
    Program{u"npm", Reader::package, u" -p --package -c --call -w --workspace --prefix ", u" exec x "},
    Program{u"npm-cli", Reader::package, u" -p --package -c --call -w --workspace --prefix ", u" exec x "},
    Program{u"pnpm", Reader::package, u" --package -C --dir ", u" dlx exec "},
    Program{u"yarn", Reader::package, u" -p --package ", u" dlx exec "},
    Program{u"bunx", Reader::package, u" -p --package ", u""},
    Program{u"uvx", Reader::package, u" --from --with -p --python --index-url -w --directory ", u""},
    Program{u"pipx", Reader::package, u" --spec --python ", u" run "},
    Program{u"docker", Reader::container, containerOptions, u" run "},
    Program{u"podman", Reader::container, containerOptions, u" run "},
    Program{u"nerdctl", Reader::container, containerOptions, u" run "},
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

const Program* programNamed(QStringView fileName) {
    const QStringView plain = withoutVersion(ProgramPath::scriptName(fileName));
    const auto found = std::ranges::find(programs, plain, &Program::name);
    return found == programs.end() ? nullptr : &*found;
}

constexpr int maxNesting = 4;

Reading readCommand(const QString& executable, Words arguments, int depth);

/// Returns the words after the option in front and its value.
Words afterOption(Words words, QStringView optionsWithValue) {
    const bool takesValue = containsWord(optionsWithValue, words.front());
    return words.subspan(std::min<size_t>(takesValue ? 2 : 1, words.size()));
}

/// Returns the words after all options.
Words afterOptions(Words words, QStringView optionsWithValue) {
    while (!words.empty() && words.front().startsWith(u'-') && words.front().size() > 1) {
        const bool isEnd = words.front() == "--"_L1;
        words = afterOption(words, optionsWithValue);
        if (isEnd)
            break;
    }
    return words;
}

Reading readScript(const Program& program, Words words, int depth) {
    while (!words.empty() && words.front().startsWith(u'-')) {
        const QString& option = words.front();
        if (option == "-m"_L1)
            return words.size() > 1 ? Reading{.program = words[1]} : Reading();
        if (option == "-c"_L1 || option == "-e"_L1 || option == "-p"_L1 || option == "--eval"_L1 ||
            option == "--print"_L1 || option == "-"_L1)
            return {};
        words = afterOption(words, program.optionsWithValue);
    }
    if (words.empty())
        return {};
    const bool isRunVerb = program.name == u"deno" || program.name == u"bun";
    if (isRunVerb && words.front() == "x"_L1)
        return readCommand(u"bunx"_s, words, depth + 1);
    if (isRunVerb && words.front() == "run"_L1)
        return readScript(program, words.subspan(1), depth);
    // A package runner is itself a script.
    const Program* inner = programNamed(ProgramPath::lastComponent(words.front()));
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

Reading readShell(const Program& program, Words words, int depth) {
    while (!words.empty() && words.front().startsWith(u'-')) {
        const QString& option = words.front();
        const bool isCommand = !option.startsWith("--"_L1) && option.endsWith(u'c');
        if (isCommand) {
            const QStringList command = words.size() > 1 ? commandWords(words[1]) : QStringList();
            if (command.isEmpty())
                return {};
            Reading reading =
                readCommand(command.first(), Words(command.constData(), command.size()), depth + 1);
            reading.isScript = false;
            reading.isLauncher = true;
            return reading;
        }
        words = afterOption(words, program.optionsWithValue);
    }
    return words.empty() ? Reading() : Reading{.program = words.front(), .isScript = true};
}

Reading readJava(const Program& program, Words words) {
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "-jar"_L1 || words[i] == "-m"_L1 || words[i] == "--module"_L1)
            return i + 1 < words.size() ? Reading{.program = words[i + 1]} : Reading();
        if (!words[i].startsWith(u'-'))
            return {.program = words[i]};
        i += containsWord(program.optionsWithValue, words[i]) ? 1 : 0;
    }
    return {};
}

/// Reads the options of a package or image, which are switches unless the table lists them with a value.
Reading readPackage(const Program& program, Words words) {
    if (!program.verbs.isEmpty()) {
        words = afterOptions(words, program.optionsWithValue);
        if (words.empty() || !containsWord(program.verbs, words.front()))
            return {};
        words = words.subspan(1);
    }
    words = afterOptions(words, program.optionsWithValue);
    return words.empty() ? Reading() : Reading{.program = words.front(), .isLauncher = true};
}

/// Reads `uv run COMMAND`, `uv tool run PACKAGE` and `uv tool uvx PACKAGE`.
Reading readUv(Words words, int depth) {
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
Reading readCommand(const QString& executable, Words arguments, int depth) {
    const QStringView file = ProgramPath::lastComponent(executable);
    const Words words = arguments.empty() ? arguments : arguments.subspan(1);
    const Reading itself{.program = executable};
    if (depth > maxNesting)
        return itself;
    Reading reading;
    if (file == u"uv") {
        reading = readUv(words, depth);
    } else if (const Program* program = programNamed(file)) {
        switch (program->reader) {
        case Reader::script:
            reading = readScript(*program, words, depth);
            break;
        case Reader::shell:
            reading = readShell(*program, words, depth);
            break;
        case Reader::java:
            reading = readJava(*program, words);
            break;
        case Reader::package:
        case Reader::container:
            reading = readPackage(*program, words);
            break;
        }
    }
    return reading.program.isEmpty() ? itself : reading;
}

} // namespace

bool LaunchedProgram::isInterpreter(QStringView fileName) {
    const Program* program = programNamed(fileName);
    return program && (program->reader == Reader::script || program->reader == Reader::shell ||
                       program->reader == Reader::java);
}

/// Reads also a title in the place of the arguments, one text with spaces: "npm exec PACKAGE".
Reading LaunchedProgram::read(const QString& executable, const QStringList& arguments) {
    if (arguments.size() == 1 && arguments.first().contains(u' ')) {
        const QStringList title = arguments.first().split(u' ', Qt::SkipEmptyParts);
        const bool isOfProgram = !title.isEmpty() && programNamed(ProgramPath::lastComponent(title.first()));
        if (isOfProgram) {
            Reading reading = readCommand(title.first(), Words(title.constData(), title.size()), 0);
            if (reading.program == title.first())
                reading.program = executable; // the title does not name it
            return reading;
        }
    }
    const bool isUnknown = executable.isEmpty() && !arguments.isEmpty();
    return readCommand(isUnknown ? arguments.first() : executable,
                       Words(arguments.constData(), arguments.size()), 0);
}
