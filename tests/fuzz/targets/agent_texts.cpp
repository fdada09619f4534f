#include "Core/Sessions/ResumeCommand.h"
#include "Core/Sessions/SessionFile.h"
#include "Platform/Freedesktop/DesktopEntry.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void sessionFile(const QByteArray& text) {
    const Instant now(std::chrono::seconds(1'700'000'000));
    const auto content = SessionFile::parse(text, 4711, 99, now);
    if (content)
        Fuzz::require(!content->changed || *content->changed <= now);
    Fuzz::require(!SessionFile::parse(text, 4712, 99, now) || !content);
}

/// Returns whether a shell reads one word in the text: plain characters, or all of it in single quotes.
bool isOneWord(const QString& text) {
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\'')
            isQuoted = !isQuoted;
        else if (!isQuoted && text[i] == u'\\')
            ++i;
        else if (!isQuoted && QStringView(u" \t\n;&|<>()$`\"*?[]#!{}").contains(text[i]))
            return false;
    }
    return !isQuoted;
}

void resumed(const QString& folder) {
    const QString command = resumeCommand(u"claude"_s, folder);
    if (command.isEmpty())
        return;
    const auto begin = "cd "_L1;
    const auto end = " && "_L1;
    Fuzz::require(command.startsWith(begin) && !command.contains(u'\n'));
    Fuzz::require(isOneWord(command.sliced(begin.size(), command.lastIndexOf(end) - begin.size())));
}

void desktopEntry(const QByteArray& text) {
    if (const auto entry = DesktopEntry::parse(text, u"de_DE.UTF-8"_s)) {
        Fuzz::require(!entry->name.contains(u'\n'));
        for (const QString& word : entry->command)
            Fuzz::require(!word.contains(u"%U"_s) || text.contains("%%"));
    }
    static_cast<void>(DesktopEntry::arguments(QString::fromUtf8(text)));
}

} // namespace

/// What an agent writes about its session, the folder that it works in, or the menu entry of an application.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text = Fuzz::bytes(data, size);
    sessionFile(text);
    resumed(QString::fromUtf8(text));
    desktopEntry(text);
    return 0;
}
