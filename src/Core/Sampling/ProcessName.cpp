#include "Core/Sampling/ProcessName.h"

#include "Core/Sampling/LaunchedProgram.h"
#include "Core/Sampling/ProgramPath.h"

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxShortNameLength = 15; // bytes, TASK_COMM_LEN without the NUL (proc(5), comm)

struct Row {
    QStringView key;
    QStringView value;
};

template <size_t size>
std::optional<QStringView> valueOf(const std::array<Row, size>& rows, QStringView key) {
    const auto found = std::ranges::find(rows, key, &Row::key);
    return found == rows.end() ? std::nullopt : std::optional(found->value);
}

/// Applications by executable. They have priority over the menu, whose names depend on the package and the
/// language: "Chromium Web Browser", "Visual Studio Code".
constexpr std::array applications = {
    Row{u"chrome", u"Google Chrome"},
    Row{u"msedge", u"Microsoft Edge"},
    Row{u"brave", u"Brave Browser"},
    Row{u"chromium", u"Chromium"},
    Row{u"vivaldi-bin", u"Vivaldi"},
    Row{u"opera", u"Opera"},
    Row{u"code", u"Code"},
    Row{u"code-insiders", u"Code - Insiders"},
    Row{u"code-oss", u"Code - OSS"},
    Row{u"codium", u"VSCodium"},
    Row{u"cursor", u"Cursor"},
    Row{u"windsurf", u"Windsurf"},
    Row{u"trae", u"Trae"},
    Row{u"slack", u"Slack"},
    Row{u"discord", u"Discord"},
    Row{u"Discord", u"Discord"},
    Row{u"firefox", u"Firefox"},
    Row{u"firefox-bin", u"Firefox"},
    Row{u"firefox-esr", u"Firefox"},
    Row{u"librewolf", u"LibreWolf"},
    Row{u"thunderbird", u"Thunderbird"},
    Row{u"thunderbird-bin", u"Thunderbird"},
    Row{u"electron", u"Electron"},
    Row{u"headless_shell", u"Chrome Headless Shell"},
    Row{u"chrome-headless-shell", u"Chrome Headless Shell"},
};

QStringView knownApplication(QStringView executable) {
    const QStringView file = ProgramPath::lastComponent(executable);
    // The folder of the archives that test tools download ("chrome-linux", "chrome-linux64").
    if (file == u"chrome" && executable.contains(u"/chrome-linux"))
        return u"Chromium";
    return valueOf(applications, file).value_or(QStringView());
}

/// Values of "--type=". The tables leave out processes whose end also ends the application: "zygote",
/// "broker", "crashpad-handler", "forkserver".
constexpr std::array chromiumRoles = {
    Row{u"renderer", u" (Renderer)"},
    Row{u"gpu-process", u" (GPU)"},
    Row{u"utility", u""},
    Row{u"ppapi", u""},
    Row{u"extensionHost", u" (Plugin)"},
    Row{u"ptyHost", u""},
    Row{u"fileWatcher", u""},
    Row{u"watcherService", u""},
    Row{u"sharedProcess", u""},
};

/// The last argument of a child of Firefox, and its default name.
constexpr std::array firefoxRoles = {
    Row{u"tab", u"Web Content"},
    Row{u"gpu", u"GPU"},
    Row{u"rdd", u"RDD Process"},
    Row{u"socket", u"Socket Process"},
    Row{u"utility", u"Utility Process"},
    Row{u"gmplugin", u"Plugin"},
    Row{u"vr", u"VR"},
};

/// Names that a child of Firefox gives itself, as the kernel cuts them.
constexpr std::array firefoxTitles = {
    Row{u"Web Content", u"Web Content"},          Row{u"Isolated Web Co", u"Isolated Web Content"},
    Row{u"Isolated Servic", u"Isolated Service"}, Row{u"Privileged Cont", u"Privileged Content"},
    Row{u"WebExtensions", u"WebExtensions"},      Row{u"file:// Content", u"File Content"},
    Row{u"WebCOOP+COEP Co", u"Web Content"},
};

/// Returns " (ROLE)" of a child process that may end without the application, or an empty optional.
std::optional<QString> chromiumRole(const QStringList& arguments) {
    constexpr auto typeOption = "--type="_L1;
    const auto option = std::ranges::find_if(
        arguments, [&typeOption](const QString& argument) { return argument.startsWith(typeOption); });
    if (option == arguments.end())
        return std::nullopt;
    // Editors run extensions in a utility process for scripts.
    if (arguments.contains("--utility-sub-type=node.mojom.NodeService"_L1))
        return u" (Plugin)"_s;
    const QString type = option->sliced(typeOption.size()).section(u' ', 0, 0);
    const auto role = valueOf(chromiumRoles, type);
    return role ? std::optional(role->toString()) : std::nullopt;
}

std::optional<QString> firefoxRole(const QStringList& arguments, const QByteArray& shortName) {
    if (!arguments.contains("-contentproc"_L1))
        return std::nullopt;
    const auto role = valueOf(firefoxRoles, arguments.last());
    if (!role)
        return std::nullopt;
    const QStringView name = valueOf(firefoxTitles, QString::fromUtf8(shortName)).value_or(*role);
    return u" ("_s + name.toString() + u')';
}

/// Splits a title: Chromium and the fork server of Firefox overwrite the arguments of a child with one text.
QStringList splitTitle(const QStringList& arguments) {
    return arguments.size() == 1 ? arguments.first().split(u' ', Qt::SkipEmptyParts) : arguments;
}

std::optional<QString> helperName(const ProcessName::Facts& facts,
                                  const ProcessName::ApplicationName& applicationName) {
    const QStringList words = splitTitle(facts.arguments);
    // The executable of a sandboxed process is unreadable.
    const QString executable =
        facts.executablePath.isEmpty() && !words.isEmpty() ? words.first() : facts.executablePath;
    const QStringView file = ProgramPath::lastComponent(executable);
    if (file.isEmpty() || LaunchedProgram::isInterpreter(file))
        return std::nullopt;
    auto role = chromiumRole(words);
    if (!role)
        role = firefoxRole(words, facts.shortName);
    if (!role)
        return std::nullopt;
    QString application = knownApplication(executable).toString();
    if (application.isEmpty())
        application = applicationName(executable);
    if (application.isEmpty())
        application = file.toString();
    return application + u" Helper"_s + *role;
}

/// Returns the program's own name from its arguments or its title, without the dash of a login shell.
QStringView firstArgument(const QStringList& arguments) {
    if (arguments.isEmpty())
        return {};
    QStringView first = arguments.first();
    const qsizetype blank = first.indexOf(u' ');
    if (blank >= 0)
        first = first.first(blank);
    if (first.startsWith(u'-'))
        first = first.sliced(1);
    return ProgramPath::lastComponent(first);
}

/// Returns whether the kernel's name is the beginning of `whole`. The kernel cuts bytes, not characters.
bool isBeginning(const QByteArray& shortName, QStringView whole) {
    return !shortName.isEmpty() && whole.toUtf8().startsWith(shortName);
}

} // namespace

QString ProcessName::of(const Facts& facts, const ApplicationName& applicationName) {
    if (const auto helper = helperName(facts, applicationName))
        return *helper;
    const QStringView executable = ProgramPath::lastComponent(facts.executablePath);
    for (const QStringView whole :
         {executable, ProgramPath::lastComponent(facts.script), firstArgument(facts.arguments)}) {
        if (isBeginning(facts.shortName, whole))
            return facts.shortName.size() >= maxShortNameLength ? whole.toString()
                                                                : QString::fromUtf8(facts.shortName);
    }
    return executable.isEmpty() ? QString::fromUtf8(facts.shortName) : executable.toString();
}
