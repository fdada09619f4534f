#include "UI/Kit/FilePanel.h"
#include "Platform/Freedesktop/Desktop/PortalFileChooser.h"

#include "support/TemporaryFolder.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFileDialog>
#include <QPointer>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const auto choosingPortal = u"org.freedesktop.portal.Desktop"_s;
const auto choosingObject = u"/org/freedesktop/portal/desktop"_s;

/// Answers as the file dialogs of the desktop portal do.
class FilePortal : public QDBusVirtualObject {
public:
    explicit FilePortal(const QDBusConnection& bus)
        : m_bus(bus) {
        m_bus.registerVirtualObject(choosingObject, this, QDBusConnection::SubPath);
        m_bus.registerService(choosingPortal);
    }
    ~FilePortal() override {
        m_bus.unregisterService(choosingPortal);
        m_bus.unregisterObject(choosingObject, QDBusConnection::UnregisterTree);
    }

    uint version = 4;
    bool hangs = false;
    QString ownPlace; ///< of the request, where an old portal makes it up
    QStringList calls;
    QVariantMap options;

    void respond(uint response, const QStringList& uris) {
        auto signal =
            QDBusMessage::createSignal(m_request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << response << QVariantMap{{u"uris"_s, uris}};
        m_bus.send(signal);
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        calls.append(message.member());
        if (hangs)
            return true;
        if (message.member() == u"Get")
            return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(version))));
        if (message.member() == u"Close")
            return bus.send(message.createReply());
        options = qdbus_cast<QVariantMap>(message.arguments().value(2));
        const QString caller = message.service().mid(1).replace(u'.', u'_');
        m_request = ownPlace.isEmpty() ? u"%1/request/%2/%3"_s.arg(choosingObject, caller,
                                                                   options[u"handle_token"_s].toString())
                                       : ownPlace;
        return bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(m_request))));
    }

private:
    QDBusConnection m_bus;
    QString m_request;
};

struct FilesOnABus : testing::Test {
    void SetUp() override {
        m_busProcess.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s,
                                              u"--address=unix:dir="_s + m_folder.path()});
        if (!m_busProcess.waitForStarted() || !m_busProcess.waitForReadyRead())
            GTEST_SKIP() << "no dbus-daemon here";
        m_address = QString::fromLatin1(m_busProcess.readLine().trimmed());
        portal.emplace(bus(u"file portal"_s));
    }
    void TearDown() override {
        window.reset();
        portal.reset();
        for (const auto& name : {u"file portal"_s, u"file client"_s})
            QDBusConnection::disconnectFromBus(name);
        m_busProcess.kill();
        m_busProcess.waitForFinished();
    }
    QDBusConnection bus(const QString& name) const { return QDBusConnection::connectToBus(m_address, name); }
    void ask(const FileChoice& choice) {
        outcome.clear();
        PortalFileChooser chooser(bus(u"file client"_s), 200);
        chooser.ask(
            window.get(), choice,
            [this](const std::optional<QString>& path) { outcome.append(path.value_or(u"none"_s)); },
            [this] { outcome.append(u"missing"_s); });
    }
    bool portalGot(const QString& call) {
        return QTest::qWaitFor([&] { return portal->calls.contains(call); }, 3000);
    }
    bool becomes(const QString& wanted) {
        return QTest::qWaitFor([&] { return outcome == QStringList(wanted); }, 3000);
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    std::optional<FilePortal> portal;
    QStringList outcome;
    const FileChoice folder{.title = u"Where"_s, .startFolder = u"/home/ana"_s};
    const FileChoice newFile{.kind = FileChoice::Kind::newFile,
                             .title = u"Save"_s,
                             .name = u"a.csv"_s,
                             .typeName = u"Text"_s,
                             .pattern = u"*.csv"_s};

private:
    TemporaryFolder m_folder;
    QProcess m_busProcess;
    QString m_address;
};

/// Records what it is asked, and answers when the test says so.
class FakeChooser : public FileChooser {
public:
    QList<FileChoice> asked;
    Answered answered;
    std::function<void()> missing;

    void ask(QWidget*, const FileChoice& choice, Answered answer, std::function<void()> none) override {
        asked.append(choice);
        answered = std::move(answer);
        missing = std::move(none);
    }
};

} // namespace

TEST_F(FilesOnABus, ThePortalsDialogGivesAPathOrNone) {
    ask(folder);
    ASSERT_TRUE(portalGot(u"OpenFile"_s));
    EXPECT_EQ(portal->options[u"directory"_s], true);
    EXPECT_EQ(portal->options[u"current_folder"_s].toByteArray(), QByteArray("/home/ana\0", 10));
    portal->respond(0, {u"file:///home/ana/a%20b%C3%A9"_s});
    EXPECT_TRUE(becomes(u"/home/ana/a bé"_s));

    portal->ownPlace = choosingObject + u"/request/made/up"_s;
    ask(newFile);
    ASSERT_TRUE(portalGot(u"SaveFile"_s));
    EXPECT_EQ(portal->options[u"current_name"_s], u"a.csv"_s);
    const auto isRefused = [this] { // the place that the portal made up has to arrive first
        portal->respond(1, {u"file:///etc/passwd"_s});
        return outcome == QStringList(u"none"_s);
    };
    EXPECT_TRUE(QTest::qWaitFor(isRefused, 3000));
}

TEST_F(FilesOnABus, APortalThatCannotOrDoesNotAnswerIsMissing) {
    portal->version = 2;
    ask(folder);
    EXPECT_TRUE(becomes(u"missing"_s)) << "it would offer files";
    ask(newFile);
    ASSERT_TRUE(portalGot(u"SaveFile"_s)) << "which every version can save";
    portal.reset();
    EXPECT_TRUE(becomes(u"none"_s)) << "the portal ended with its dialog";
    ask(newFile);
    EXPECT_TRUE(becomes(u"missing"_s));
    portal.emplace(bus(u"file portal"_s));
    portal->hangs = true;
    ask(newFile);
    EXPECT_TRUE(becomes(u"missing"_s));
}

TEST_F(FilesOnABus, ADialogOfAWindowThatHasGoneIsClosed) {
    ask(folder);
    ASSERT_TRUE(portalGot(u"OpenFile"_s));
    QTest::qWait(20);
    window.reset();
    EXPECT_TRUE(portalGot(u"Close"_s));
    EXPECT_TRUE(outcome.isEmpty());
}

TEST(FilePanel, AsksOnceAndFallsBackToTheToolkitsDialog) {
    const auto desktops = std::make_shared<FakeChooser>();
    FilePanel::use(desktops);
    QStringList chosen;
    auto window = std::make_unique<QWidget>();
    const auto open = [&] {
        FilePanel::open(window.get(), {.title = u"Where"_s, .startFolder = u"/"_s},
                        [&chosen](const QString& path) { chosen.append(path); });
    };
    open();
    open();
    ASSERT_EQ(desktops->asked.size(), 1) << "one dialog at a time";
    desktops->answered(u"/x"_s);
    EXPECT_EQ(chosen, QStringList(u"/x"_s));
    open();
    desktops->answered(std::nullopt);
    open();
    EXPECT_EQ(desktops->asked.size(), 3);
    desktops->missing();
    auto* panel = window->findChild<QFileDialog*>();
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->fileMode(), QFileDialog::Directory);
    Q_EMIT panel->fileSelected(u"/y"_s);
    EXPECT_EQ(chosen, (QStringList{u"/x"_s, u"/y"_s}));
    delete panel;
    open();
    window.reset();
    desktops->answered(u"/z"_s);
    EXPECT_EQ(chosen.size(), 2) << "nobody is there any more";
    FilePanel::use(nullptr);
}
