#include "Core/ReliefFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using QuickKillTest = ReliefTest;
using Counts = ProcessActions::QuickKillResult;

} // namespace

TEST_F(QuickKillTest, MatchesNamePathAndArgumentsInAnyCase) {
    add(1, "Google Chrome Helper (Renderer)", 1);
    add(2, "plain", 1, {.uid = 1000}, "/opt/Chrome/bin/plain");
    add(3, "node", 1, {.uid = 1000}, {}, QByteArray("node\0--driver=CHROME\0", 21));
    add(4, "chrome", 1, {.uid = 0});
    add(5, "other", 1);
    add(fakes.identity->pid, "chrome", 1);
    tick();
    EXPECT_EQ(model->actions().previewMatches(u"chrome"_s, 0, 0), 3);
    EXPECT_EQ(model->actions().previewMatches(QString(), 0, 0), 0);
    EXPECT_TRUE(signalled().isEmpty());
    EXPECT_EQ(model->actions().quickKill(u"chrome"_s, u"Browsers"_s, 0, 0, true), (Counts{3, 3}));
    EXPECT_EQ(signalled(), (QList<qint32>{1, 2, 3}));
    EXPECT_EQ(signalSender->sent().first().signal, Signal::kill);
    EXPECT_EQ(logged(), QStringList(u"forceKill [quickKill] Browsers — matched=3 killed=3 ok"_s));
}

TEST_F(QuickKillTest, ThresholdsAreInclusive) {
    add(1, "ollama", 200 * MiB);
    tick();
    fakes.clock->advance(899);
    tick();
    EXPECT_EQ(model->actions().previewMatches(u"ollama"_s, 15, 200), 0);
    fakes.clock->advance(1);
    tick();
    EXPECT_EQ(model->actions().previewMatches(u"ollama"_s, 15, 200.9), 1);
    EXPECT_EQ(model->actions().previewMatches(u"ollama"_s, 15, 201), 0);
    EXPECT_EQ(model->actions().previewMatches(u"ollama"_s, 15, std::nan("")), 0);
}

TEST_F(QuickKillTest, SuccessIsADeliveredSignalOrNothingToDo) {
    EXPECT_EQ(model->actions().quickKill(u"x"_s, u"None"_s, 0, 0, false), (Counts{0, 0}));
    add(1, "match", 1);
    add(2, "match", 1);
    for (const qint32 pid : {1, 2})
        signalSender->start(pid, {.terminate = SignalResult::notPermitted});
    tick();
    EXPECT_EQ(model->actions().quickKill(u"match"_s, u"Denied"_s, 0, 0, false), (Counts{2, 0}));
    signalSender->end(1);
    signalSender->start(2);
    EXPECT_EQ(model->actions().quickKill(u"match"_s, u"Half"_s, 0, 0, false), (Counts{2, 1}));
    EXPECT_EQ(logged(), (QStringList{u"quit [quickKill] Half — matched=2 killed=1 ok"_s,
                                     u"quit [quickKill] Denied — matched=2 killed=0 fail"_s,
                                     u"quit [quickKill] None — matched=0 killed=0 ok"_s}));
}

TEST(QuickKillPresetTest, Texts) {
    const QList<QuickKillPreset>& defaults = QuickKillPreset::defaults();
    ASSERT_EQ(defaults.size(), 6);
    EXPECT_EQ(defaults[0].summaryLine(), u"pattern: Google Chrome Helper • force"_s);
    EXPECT_EQ(defaults[3].summaryLine(), u"pattern: claude • idle≥15m • RAM≥500MB"_s);
    EXPECT_EQ(defaults[5].summaryLine(), u"pattern: Docker • idle≥30m • RAM≥200MB • force"_s);
    EXPECT_EQ(defaults[4].outcomeMessage(3, 2), u"Idle Ollama (>10m): killed 2/3"_s);
    EXPECT_EQ(defaults[4].outcomeMessage(0, 0), u"Idle Ollama (>10m): nothing matched"_s);
    EXPECT_NE(QuickKillPreset::blank().id, QuickKillPreset::blank().id);
}

TEST(QuickKillPresetTest, TheDocumentReadsBack) {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    EXPECT_EQ(prefs.quickKillPresets(), QuickKillPreset::defaults());
    QuickKillPreset odd = QuickKillPreset::blank();
    odd.name = u"“quotes” \"and\" 日本\n"_s;
    odd.minIdleMinutes = 0.25;
    prefs.storeQuickKillPresets({odd});
    EXPECT_EQ(Preferences(settings.path).quickKillPresets(), QList<QuickKillPreset>{odd});
    const QJsonObject object = QJsonDocument::fromJson(prefs.quickKillPresetsJSON()).array()[0].toObject();
    EXPECT_EQ(object.keys(), (QStringList{u"force"_s, u"id"_s, u"minIdleMinutes"_s, u"minRSSMB"_s, u"name"_s,
                                          u"pattern"_s, u"symbol"_s}));
    EXPECT_EQ(object[u"id"_s].toString(), odd.id.toString(QUuid::WithoutBraces).toUpper());
    prefs.storeQuickKillPresets({});
    EXPECT_EQ(prefs.quickKillPresetsJSON(), "[]");
    EXPECT_TRUE(prefs.quickKillPresets().isEmpty());
    odd.minRSSMB = std::nan("");
    prefs.storeQuickKillPresets({odd});
    EXPECT_EQ(prefs.quickKillPresetsJSON(), "");
}

TEST(QuickKillPresetTest, AnUnreadableDocumentGivesTheDefaultsAndStays) {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    const QByteArray good = QuickKillPreset::encode({QuickKillPreset::blank()});
    ASSERT_TRUE(QuickKillPreset::decode(good));
    QList<QByteArray> documents = {"x", "{}", "[1]", "[{}]", "null", QByteArray(good).chopped(1)};
    for (const char* key : {"id", "name", "pattern", "minIdleMinutes", "minRSSMB", "force", "symbol"})
        documents.append(QByteArray(good).replace(QByteArray("\"") + key + "\"", "\"elsewhere\""));
    documents.append(QByteArray(good).replace("false", "0"));
    documents.append(QByteArray(good).replace("\"minRSSMB\":0", "\"minRSSMB\":\"0\""));
    documents.append(QByteArray(good).replace("-", ""));
    for (const QByteArray& document : documents) {
        ASSERT_NE(document, good);
        prefs.quickKillPresetsJSON.set(document);
        EXPECT_EQ(prefs.quickKillPresets(), QuickKillPreset::defaults()) << document.constData();
        EXPECT_EQ(prefs.quickKillPresetsJSON(), document);
    }
}
