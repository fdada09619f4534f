#include "Camera.h"
#include "Screens.h"
#include "Stage.h"

#include "UI/MainWindow.h"
#include "UI/MessageBanner.h"
#include "UI/RootView.h"

#include <QCoroTask>

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// Takes the announcements of all severities below each other, and one above a section.
void shootBanners(Camera& camera) {
    using Severity = Message::Severity;
    const auto says = [](Severity severity, const QString& title, const QString& body,
                         const std::optional<QString>& action = {}) {
        return Message{.id = title,
                       .severity = severity,
                       .title = title,
                       .body = body,
                       .actionLabel = action,
                       .actionURL = u"https://tavrin.example/news"_s};
    };
    const Message messages[] = {
        says(Severity::info, u"Thank you for trying Tavrin"_s,
             u"A short tour shows what the four sections are for."_s, u"Take the Tour"_s),
        says(Severity::warn, u"Cleaning the container cache may take long"_s,
             u"With the latest container runtime the prune command waits for running builds. Until "
             "that is repaired there, stop your builds before you clean, or leave that target out: "
             "the other targets are not affected by it. If a clean seems to hang, it goes on as "
             "soon as the last build ends; nothing is lost, and the freed space is counted when it "
             "is done. We shall take this notice back once a repaired runtime has been out for a "
             "while, and you need not do anything about it then."_s,
             u"Details"_s),
        says(Severity::update, u"Tavrin 1.2 is out"_s, u"It finds the caches of two more package managers."_s,
             u"Get It"_s),
        says(Severity::upgrade, u"Watch more than one machine"_s,
             u"The team edition shows all your workstations and build servers in one window."_s,
             u"See the Team Edition"_s),
        says(Severity::info, u"The site is being moved this weekend"_s,
             u"Downloads may fail for an hour."_s)};
    QList<std::shared_ptr<Stage>> stages;
    QWidget sheet;
    sheet.resize(800, 0);
    auto* column = new QVBoxLayout(&sheet);
    column->setContentsMargins(0, 0, 0, 0);
    for (const Message& message : messages) {
        stages.append(std::make_shared<Stage>());
        stages.last()->feed->answer = feedOf({message});
        QCoro::waitFor(stages.last()->messages.refresh());
        column->addWidget(new MessageBanner(stages.last()->messages));
    }
    camera.take(sheet, u"banners"_s);

    Stage& stage = *stages[2];
    stage.play(150, 24, 8.1);
    MainWindow window(stage.model, stage.prefs, stage.messages);
    window.resize(RootView::minimumContent);
    camera.take(window, u"overview-banner"_s);
}
