#include "LaunchOptions.h"

#include <QCommandLineParser>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int usageStatus = 2;
const QByteArray hiddenRequest = "hidden";

/// The options that Qt takes, each with a value but the last. A session manager passes "-session ID".
const QStringList optionsOfQt = {u"platform"_s,    u"platformpluginpath"_s, u"platformtheme"_s, u"plugin"_s,
                                 u"style"_s,       u"stylesheet"_s,         u"session"_s,       u"display"_s,
                                 u"qwindowicon"_s, u"qwindowgeometry"_s,    u"qwindowtitle"_s,  u"reverse"_s};

QStringList withoutOptionsOfQt(QStringList arguments) {
    for (qsizetype i = 0; i < arguments.size();) {
        QString name = arguments[i].section(u'=', 0, 0);
        name.remove(0, name.startsWith("--"_L1) ? 2 : 1);
        if (!arguments[i].startsWith(u'-') || !optionsOfQt.contains(name)) {
            ++i;
            continue;
        }
        const bool hasValue = name != optionsOfQt.constLast() && !arguments[i].contains(u'=');
        arguments.remove(i, std::min<qsizetype>(hasValue ? 2 : 1, arguments.size() - i));
    }
    return arguments;
}

QStringList placeNames() {
    QStringList names;
    for (const Destination place : allCases<Destination>())
        names.append(rawValue(place));
    return names;
}

QString helpText() {
    return u"Usage: tavrin [--hidden] [--section NAME]\n"
           "Watches memory and disk space, and gives them back.\n\n"
           "  --hidden        start without a window, in the status area\n"
           "  --section NAME  open there, also in a running Tavrin:\n"
           "                  %1\n"
           "  --help          print this help\n"
           "  --version       print the version\n\n"
           "On a terminal, see tavrinctl.\n"_s.arg(placeNames().join(u", "_s));
}

LaunchOptions misuse(const QString& what) {
    return {.answer = LaunchOptions::Answer{u"tavrin: "_s + what + u" (see tavrin --help)\n"_s, usageStatus}};
}

} // namespace

LaunchOptions LaunchOptions::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption help(u"help"_s);
    const QCommandLineOption version(u"version"_s);
    const QCommandLineOption hidden(u"hidden"_s);
    const QCommandLineOption section(u"section"_s, {}, u"NAME"_s);
    parser.addOptions({help, version, hidden, section});
    if (!parser.parse(QStringList(u"tavrin"_s) + withoutOptionsOfQt(arguments)))
        return misuse(parser.errorText().remove(u'\n'));
    if (parser.isSet(help))
        return {.answer = Answer{helpText()}};
    if (parser.isSet(version))
        return {.answer = Answer{QStringLiteral("Tavrin " TAVRIN_VERSION "\n")}};
    if (!parser.positionalArguments().isEmpty())
        return misuse(u"unexpected argument '%1'"_s.arg(parser.positionalArguments().constFirst()));
    LaunchOptions options{.isHidden = parser.isSet(hidden)};
    if (!parser.isSet(section))
        return options;
    options.place = fromRawValue<Destination>(parser.value(section).toLower());
    if (!options.place)
        return misuse(
            u"no section '%1'; there are %2"_s.arg(parser.value(section), placeNames().join(u", "_s)));
    return options;
}

QByteArray LaunchOptions::request() const {
    return isHidden ? hiddenRequest : place ? rawValue(*place).toUtf8() : QByteArray();
}

LaunchOptions LaunchOptions::ofRequest(const QByteArray& request) {
    return {.isHidden = request == hiddenRequest,
            .place = fromRawValue<Destination>(QString::fromUtf8(request))};
}
