#include "ProgramBus.h"

#include "UI/ModelFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

class RecordingService : public ProgramService {
public:
    Answers answers;
    QVariantMap figures;
    int published = 0;
    Outcome outcome = Outcome::success();

    Outcome start(Answers given) override {
        answers = std::move(given);
        return outcome;
    }
    void publish(const QVariantMap& values) override {
        figures = values;
        ++published;
    }
};

struct ProgramBusTest : ModelFixture {
    RecordingService* service = new RecordingService;
    ProgramBus bus{model, std::unique_ptr<ProgramService>(service)};
    QList<LaunchOptions> asked;

    ProgramBusTest() {
        QObject::connect(&bus, &ProgramBus::asked, &bus,
                         [this](const LaunchOptions& options) { asked.append(options); });
    }
    QJsonObject report(const QString& kind) const {
        return QJsonDocument::fromJson(service->answers.report(kind)).object();
    }
};

} // namespace

TEST_F(ProgramBusTest, ToldAreTheFiguresOfTheLastTick) {
    bus.start();
    fakes.host->memory.swapUsedBytes = 12345;
    fakes.host->thermal = 2;
    addProcesses(1, "claude", 1);
    tick();
    settle();
    EXPECT_EQ(service->figures.value(u"SwapUsedBytes"_s), QVariant::fromValue<qulonglong>(12345));
    EXPECT_EQ(service->figures.value(u"ThermalState"_s).toString(), u"serious"_s);
    EXPECT_EQ(service->figures.value(u"ProcessCount"_s), QVariant(1U));
    EXPECT_EQ(report(u"status"_s).value(u"swap_used_bytes"_s).toInteger(), 12345);
    EXPECT_EQ(report(u"status"_s).value(u"source"_s).toString(), u"program"_s);
    EXPECT_EQ(report(u"processes"_s).value(u"processes"_s).toArray().size(), 1);
    EXPECT_EQ(report(u"sessions"_s).value(u"sessions"_s).toArray().size(), 1);
    for (const QString& other : {u"projects"_s, u"log"_s, u"secrets"_s, QString()})
        EXPECT_TRUE(service->answers.report(other).isEmpty()) << qPrintable(other);
    const int before = service->published;
    tick();
    settle();
    EXPECT_EQ(service->published, before + 1) << "once for a tick";
}

TEST_F(ProgramBusTest, AProgramMayHaveSomethingShownAndNothingElse) {
    bus.start();
    EXPECT_TRUE(service->answers.show(u"free-ram"_s));
    EXPECT_TRUE(asked.isEmpty()) << "the caller has its answer first";
    EXPECT_TRUE(service->answers.show(QString()));
    for (const QString& other : {u"quit"_s, u"Cleanup"_s, u"clean-all"_s})
        EXPECT_FALSE(service->answers.show(other)) << qPrintable(other);
    settle();
    EXPECT_EQ(asked, (QList<LaunchOptions>{{.place = Destination::freeRAM}, {}}));
}

TEST_F(ProgramBusTest, WithoutABusNothingIsPublished) {
    service->outcome = Outcome::failure(u"no bus"_s);
    bus.start();
    const int before = service->published;
    tick();
    settle();
    EXPECT_EQ(service->published, before);
}
