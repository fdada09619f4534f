#include "UI/Sessions/SessionDialogs.h"

#include "Core/Formatters.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/SizeList.h"
#include "UI/Overview/ReturnTexts.h"
#include "UI/Sessions/SessionTexts.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr Theme::Length sessionListHeight{260};
constexpr SessionPart parts[] = {SessionPart::agent, SessionPart::server, SessionPart::devServer,
                                 SessionPart::browser, SessionPart::command};

SessionPart partOf(const ProcSample& process, const QList<SessionProcess>& known) {
    const auto found = std::ranges::find(
        known, process.identity(), [](const SessionProcess& member) { return member.process.identity(); });
    return found == known.end() ? SessionPart::command : found->part;
}

/// Returns the list of what ends, under a heading for each kind.
SizeList* listOf(const SessionDialogs::Question& question) {
    auto* list = new SizeList(QCoreApplication::translate("SessionDialogs", "What ends"));
    QStringList spoken;
    for (const SessionPart part : parts) {
        bool isFirst = true;
        for (const ProcSample& process : question.ending.processes) {
            if (partOf(process, question.processes) != part)
                continue;
            if (std::exchange(isFirst, false))
                list->addHeading(SessionTexts::headingOf(part));
            const QString memory = SummedMemory::of({process}).text();
            list->addRow({.name = process.name, .figure = memory});
            spoken.append(
                u"%1, %2, %3"_s.arg(Formatters::visible(process.name), SessionTexts::nameOf(part), memory));
        }
    }
    list->setAccessibleDescription(spoken.join(u"; "_s));
    list->fit(ConfirmDialog::textWidth, sessionListHeight);
    return list;
}

QString textOf(const SessionEnding& ending) {
    QStringList paragraphs{
        ending.host
            ? QCoreApplication::translate(
                  "SessionDialogs", "The agent is asked first and has 5 s to save. What it started ends "
                                    "with it, and what stays is force-killed.")
            : QCoreApplication::translate("SessionDialogs",
                                          "The processes are asked to end, and what stays is force-killed."),
        Formatters::sentence(ReturnTexts::promise(ending.givesBack))};
    if (!ending.resumeCommand.isEmpty())
        paragraphs.append(
            QCoreApplication::translate("SessionDialogs", "This takes the conversation up again: %1")
                .arg(ending.resumeCommand));
    return paragraphs.join(u"\n\n"_s);
}

} // namespace

void SessionDialogs::askEnd(QWidget* parent, QObject* owner, const Question& question,
                            const std::function<void()>& act) {
    auto* dialog = new ConfirmDialog(parent, question.title, textOf(question.ending));
    if (!question.ending.processes.isEmpty())
        dialog->addContent(listOf(question));
    auto* button = dialog->addAction(question.button, PushButton::Look::destructive);
    QObject::connect(button, &QPushButton::clicked, owner, act);
    dialog->open();
}

void SessionDialogs::askPause(QWidget* parent, QObject* owner, const Session& session,
                              const std::function<void()>& act) {
    const QString effect = QCoreApplication::translate(
        "SessionDialogs", "Stops the session and all that it started: they keep their memory and use no "
                          "processor time until you resume them, or close this program.");
    const QString afterwards = QCoreApplication::translate(
        "SessionDialogs",
        "The terminal's shell may report the agent as stopped. After Resume, type fg there.");
    auto* dialog = new ConfirmDialog(
        parent, QCoreApplication::translate("SessionDialogs", "Pause %1?").arg(session.title()),
        effect + u"\n\n"_s + afterwards);
    auto* button =
        dialog->addAction(QCoreApplication::translate("SessionDialogs", "Pause"), PushButton::Look::normal);
    QObject::connect(button, &QPushButton::clicked, owner, act);
    dialog->open();
}
