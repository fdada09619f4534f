#include "Platform/Freedesktop/Desktop/FreedesktopNotifications.h"

#include "Platform/Freedesktop/Desktop/NotificationText.h"

#include "support/TemporaryFolder.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const auto notificationName = u"org.freedesktop.Notifications"_s;
const auto notificationObject = u"/org/freedesktop/Notifications"_s;

/// A server of notifications that the test lets misbehave.
class NotificationServer : public QDBusVirtualObject {
public:
    explicit NotificationServer(const QDBusConnection& bus)
        : m_bus(bus) {
        m_bus.registerVirtualObject(notificationObject, this);
        m_bus.registerService(notificationName);
    }
    ~NotificationServer() override {
        m_bus.unregisterService(notificationName);
        m_bus.unregisterObject(notificationObject);
    }

    QStringList capabilities{u"body"_s, u"body-markup"_s, u"actions"_s};
    bool hangs = false;
    QString error;                  ///< the reply to Notify, if any
    std::optional<quint32> givenId; ///< for every notification
    QStringList calls;              ///< "caps", "notify REPLACED TITLE", "close ID"
    QDBusMessage last;              ///< the last Notify
    QList<QDBusMessage> unanswered;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QVariantList arguments = message.arguments();
        if (message.member() == u"GetCapabilities"_s) {
            calls.append(u"caps"_s);
        } else if (message.member() == u"CloseNotification"_s) {
            calls.append(u"close %1"_s.arg(arguments[0].toUInt()));
        } else if (message.member() == u"Notify"_s) {
            calls.append(u"notify %1 %2"_s.arg(arguments[1].toUInt()).arg(arguments[3].toString()));
            last = message;
        } else {
            return false;
        }
        if (hangs)
            unanswered.append(message);
        else
            answer(message, bus);
        return true;
    }
    void answerAll() {
        hangs = false;
        for (const QDBusMessage& message : std::exchange(unanswered, {}))
            answer(message, m_bus);
    }
    void emitSignal(const QString& name, const QVariantList& arguments) {
        QDBusMessage signal = QDBusMessage::createSignal(notificationObject, notificationName, name);
        signal.setArguments(arguments);
        m_bus.send(signal);
    }

private:
    void answer(const QDBusMessage& message, QDBusConnection bus) {
        if (message.member() == u"GetCapabilities"_s) {
            bus.send(message.createReply(capabilities));
        } else if (message.member() == u"Notify"_s && !error.isEmpty()) {
            bus.send(message.createErrorReply(error, u"no"_s));
        } else if (message.member() == u"Notify"_s) {
            const quint32 replaced = message.arguments()[1].toUInt();
            bus.send(message.createReply(givenId.value_or(replaced ? replaced : ++m_lastId)));
        } else {
            bus.send(message.createReply());
        }
    }

    QDBusConnection m_bus;
    quint32 m_lastId = 40;
};

struct NotificationsOnABus : testing::Test {
    void SetUp() override {
        const QString configuration = folder.makeFile(u"bus.conf"_s, busConfiguration());
        m_busProcess.start(u"dbus-daemon"_s,
                           {u"--config-file"_s, configuration, u"--nofork"_s, u"--print-address"_s});
        ASSERT_TRUE(m_busProcess.waitForStarted() && m_busProcess.waitForReadyRead());
        m_address = QString::fromLatin1(m_busProcess.readLine().trimmed());
        notifications = std::make_unique<FreedesktopNotifications>(connection(u"notified"_s),
                                                                   FreedesktopNotifications::Limits{300, 2});
        QObject::connect(notifications.get(), &Notifications::invoked, notifications.get(),
                         [this](const QString& key, const QString& action) {
                             events.append(u"invoked %1 %2"_s.arg(key, action));
                         });
        QObject::connect(notifications.get(), &Notifications::closed, notifications.get(),
                         [this](const QString& key) { events.append(u"closed "_s + key); });
    }
    void TearDown() override {
        server.reset();
        notifications.reset();
        for (const auto& name : {u"server"_s, u"notified"_s, u"stranger"_s})
            QDBusConnection::disconnectFromBus(name);
        m_busProcess.kill();
        m_busProcess.waitForFinished();
    }
    QDBusConnection connection(const QString& name) const {
        return QDBusConnection::connectToBus(m_address, name);
    }
    NotificationServer& startServer() {
        server.reset();
        server = std::make_unique<NotificationServer>(connection(u"server"_s));
        return *server;
    }
    void show(const QString& key, const QString& title = u"t"_s, const QString& body = u"b"_s) const {
        notifications->show({.key = key,
                             .title = title,
                             .body = body,
                             .urgency = Notification::Urgency::critical,
                             .actions = {{u"show"_s, u"Show"_s}, {u"quit"_s, u"Quit <a>"_s}}});
    }
    void replaceOneWhileTheServerHangs() {
        startServer();
        show(u"a"_s);
        EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 t"_s}));
        settleBus();
        server->hangs = true;
        show(u"a"_s, u"new"_s);
    }
    bool serverGot(const QStringList& calls) {
        const bool has = QTest::qWaitFor([&] { return server->calls == calls; }, 3000);
        if (!has)
            ADD_FAILURE() << "got " << qPrintable(server->calls.join(u", "_s));
        server->calls.clear();
        return has;
    }
    bool happened(const QStringList& expected) {
        const bool has = QTest::qWaitFor([&] { return events == expected; }, 3000);
        if (!has)
            ADD_FAILURE() << "got " << qPrintable(events.join(u", "_s));
        events.clear();
        return has;
    }
    /// Lets everything that is under way arrive: the bus keeps the order of messages.
    void settleBus() const { QTest::qWait(80); }

    TemporaryFolder folder;
    std::unique_ptr<FreedesktopNotifications> notifications;
    std::unique_ptr<NotificationServer> server;
    QStringList events;

private:
    /// A bus that starts nothing that is installed here.
    QByteArray busConfiguration() const {
        return "<busconfig><type>session</type><listen>unix:dir=" + folder.path().toUtf8() +
               "</listen><servicedir>" + folder.makeFolder(u"services"_s).toUtf8() +
               "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
               "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>";
    }

    QProcess m_busProcess;
    QString m_address;
};

/// The bus starts a server on demand, which ends at once.
struct NotificationsOfABrokenServer : NotificationsOnABus {
    void SetUp() override {
        folder.makeFile(u"services/notifications.service"_s,
                        "[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/bin/false\n");
        NotificationsOnABus::SetUp();
    }
};

} // namespace

TEST_F(NotificationsOnABus, ShowsReplacesAndWithdraws) {
    startServer();
    show(u"memory"_s, u"first"_s);
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 first"_s}));
    const QVariantList sent = server->last.arguments();
    EXPECT_EQ(server->last.signature(), u"susssasa{sv}i"_s);
    EXPECT_EQ(sent[0], u"Tavrin"_s);
    EXPECT_EQ(sent[5].toStringList(),
              (QStringList{u"default"_s, u"Show"_s, u"show"_s, u"Show"_s, u"quit"_s, u"Quit <a>"_s}));
    const auto hints = qdbus_cast<QVariantMap>(sent[6]);
    EXPECT_EQ(hints[u"urgency"_s].toInt(), 2);
    EXPECT_EQ(hints[u"urgency"_s].metaType(), QMetaType::fromType<uchar>());
    EXPECT_EQ(hints[u"desktop-entry"_s], u"org.example.tavrin"_s);
    settleBus();
    show(u"memory"_s, u"second"_s);
    show(u"thermal"_s, u"other"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return server->calls.size() == 2; }));
    server->calls.sort();
    EXPECT_TRUE(serverGot({u"notify 0 other"_s, u"notify 41 second"_s}));
    settleBus();
    notifications->withdraw(u"memory"_s);
    notifications->withdraw(u"memory"_s);
    notifications->withdraw(u"unknown"_s);
    EXPECT_TRUE(serverGot({u"close 41"_s}));
    server->emitSignal(u"NotificationClosed"_s, {41U, 3U});
    show(u"memory"_s, u"third"_s);
    EXPECT_TRUE(serverGot({u"notify 0 third"_s}));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(NotificationsOnABus, ActionsAndClosings) {
    startServer();
    for (const auto& key : {u"a"_s, u"b"_s, u"c"_s}) {
        show(key);
        settleBus();
    }
    server->calls.clear();
    server->emitSignal(u"ActionInvoked"_s, {41U, u"quit"_s});
    server->emitSignal(u"ActionInvoked"_s, {41U, u"quit"_s}); // a second press opens nothing
    server->emitSignal(u"ActionInvoked"_s, {42U, u"default"_s});
    server->emitSignal(u"NotificationClosed"_s, {42U, 2U});
    server->emitSignal(u"NotificationClosed"_s, {43U, 2U});
    EXPECT_TRUE(happened({u"invoked a quit"_s, u"invoked b show"_s, u"closed c"_s}));
    EXPECT_TRUE(serverGot({u"close 41"_s, u"close 42"_s}));
    show(u"c"_s);
    EXPECT_TRUE(serverGot({u"notify 0 t"_s}));
}

TEST_F(NotificationsOnABus, AnActivationTokenOfTheServerIsKept) {
    startServer();
    show(u"a"_s);
    settleBus();
    qunsetenv("XDG_ACTIVATION_TOKEN");
    server->emitSignal(u"ActivationToken"_s, {99U, u"foreign"_s});
    server->emitSignal(u"ActivationToken"_s, {41U, QString(5000, u'x')});
    settleBus();
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    server->emitSignal(u"ActivationToken"_s, {41U, u"ours"_s});
    EXPECT_TRUE(QTest::qWaitFor([] { return qgetenv("XDG_ACTIVATION_TOKEN") == "ours"; }));
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(NotificationsOnABus, SignalsOfOthersChangeNothing) {
    startServer();
    show(u"a"_s);
    settleBus();
    const auto forge = [stranger = connection(u"stranger"_s)](const QString& name, const QVariant& detail) {
        QDBusMessage forged = QDBusMessage::createSignal(notificationObject, notificationName, name);
        forged.setArguments({41U, detail});
        stranger.send(forged);
    };
    forge(u"ActionInvoked"_s, u"forged"_s);
    forge(u"NotificationClosed"_s, 2U);
    settleBus();
    for (quint32 i = 0; i < 20'000; ++i)
        server->emitSignal(i % 2 ? u"ActionInvoked"_s : u"NotificationClosed"_s,
                           i % 2 ? QVariantList{100 + i, u"quit"_s} : QVariantList{i % 40, 2U});
    server->emitSignal(u"ActionInvoked"_s, {41U, u"quit"_s});
    EXPECT_TRUE(happened({u"invoked a quit"_s})); // after the flood
}

TEST_F(NotificationsOnABus, WhatTheServerCannotShowIsLeftOut) {
    startServer().capabilities = {u"body"_s};
    show(u"a"_s, u"<b>t</b>"_s, u"a<b> & \"c\"\nd"_s);
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 <b>t</b>"_s}));
    EXPECT_EQ(server->last.arguments()[4], u"a<b> & \"c\"\nd"_s);
    EXPECT_TRUE(server->last.arguments()[5].toStringList().isEmpty());
    startServer();
    EXPECT_TRUE(happened({u"closed a"_s}));
    show(u"b"_s, u"t"_s, u"a<b> & \"c\"\nd"_s);
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 t"_s}));
    EXPECT_EQ(server->last.arguments()[4], u"a&lt;b&gt; &amp; &quot;c&quot;\nd"_s);
}

TEST_F(NotificationsOnABus, WithoutAServerTheLastTextOfEachWaits) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return notifications->isAvailable() == false; }));
    QSignalSpy changes(notifications.get(), &Notifications::availabilityChanged);
    show(u"a"_s, u"old"_s);
    show(u"b"_s, u"over"_s);
    settleBus();
    show(u"a"_s, u"new"_s);
    settleBus();
    notifications->withdraw(u"b"_s);
    startServer();
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 new"_s}));
    EXPECT_EQ(notifications->isAvailable(), true);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_TRUE(events.isEmpty());
    server.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return notifications->isAvailable() == false; }));
}

TEST_F(NotificationsOfABrokenServer, WaitsForOneThatWorks) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return notifications->isAvailable() == true; })); // it could be started
    show(u"a"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return notifications->isAvailable() == false; }));
    startServer();
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 t"_s}));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(NotificationsOnABus, AfterARestartNothingIsShownAgain) {
    startServer();
    for (const auto& key : {u"a"_s, u"b"_s}) {
        show(key);
        settleBus();
    }
    startServer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return events.size() == 2; }));
    events.sort();
    EXPECT_TRUE(happened({u"closed a"_s, u"closed b"_s}));
    settleBus();
    EXPECT_TRUE(serverGot({}));
    notifications->withdraw(u"a"_s); // its id may be another's by now
    server->emitSignal(u"ActionInvoked"_s, {42U, u"quit"_s});
    show(u"b"_s);
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 t"_s}));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(NotificationsOnABus, AServerThatHangsHoldsUpNothing) {
    startServer();
    show(u"a"_s);
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 t"_s}));
    settleBus();
    server->hangs = true;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 50; ++i)
        show(u"x%1"_s.arg(i));
    EXPECT_LT(timer.elapsed(), 100);
    settleBus();
    EXPECT_EQ(server->calls.size(), 2); // in flight
    for (int i = 0; i < 50; ++i)
        notifications->withdraw(u"x%1"_s.arg(i));
    EXPECT_TRUE(QTest::qWaitFor([&] { return server->unanswered.size() == 2; }));
    server->answerAll(); // late: what is shown by now is closed
    EXPECT_TRUE(QTest::qWaitFor([&] { return server->calls.size() == 4; }));
    EXPECT_EQ(server->calls.last(2), (QStringList{u"close 42"_s, u"close 43"_s}));
    EXPECT_TRUE(events.isEmpty());

    server->hangs = true;
    show(u"y"_s);
    EXPECT_TRUE(happened({u"closed y"_s})); // after the timeout
    server->answerAll();
    settleBus();
    server->calls.clear();
    show(u"y"_s);
    EXPECT_TRUE(serverGot({u"notify 0 t"_s}));
}

TEST_F(NotificationsOnABus, AServerThatHangsFromTheStartIsAskedAgainLater) {
    startServer().hangs = true;
    show(u"a"_s);
    show(u"b"_s);
    QTest::qWait(500);
    EXPECT_TRUE(serverGot({u"caps"_s}));
    server->hangs = false;
    server->unanswered.clear();
    show(u"a"_s, u"new"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return server->calls.size() == 3; }));
    server->calls.sort();
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 new"_s, u"notify 0 t"_s}));
}

TEST_F(NotificationsOnABus, ErrorsAndWrongIdsAreNotRepeated) {
    startServer().error = u"org.freedesktop.Notifications.Error.ExcessNotificationGeneration"_s;
    show(u"a"_s);
    EXPECT_TRUE(happened({u"closed a"_s}));
    server->error = u"org.freedesktop.DBus.Error.ServiceUnknown"_s; // by a server that is there
    show(u"a"_s);
    EXPECT_TRUE(happened({u"closed a"_s}));
    server->error.clear();
    server->givenId = 0;
    show(u"a"_s);
    EXPECT_TRUE(happened({u"closed a"_s}));
    settleBus();
    EXPECT_TRUE(serverGot({u"caps"_s, u"notify 0 t"_s, u"notify 0 t"_s, u"notify 0 t"_s}));
    notifications->withdraw(u"a"_s);
    server->emitSignal(u"NotificationClosed"_s, {0U, 2U});
    settleBus();
    EXPECT_TRUE(serverGot({}));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(NotificationsOnABus, OneThatIsClosedWhileItIsReplacedStaysClosed) {
    replaceOneWhileTheServerHangs();
    EXPECT_TRUE(serverGot({u"notify 41 new"_s}));
    server->emitSignal(u"NotificationClosed"_s, {41U, 2U});
    EXPECT_TRUE(happened({u"closed a"_s}));
    server->answerAll();
    EXPECT_TRUE(serverGot({u"close 41"_s}));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(NotificationsOnABus, OneThatIsReplacedWhileTheProgramEndsIsClosed) {
    replaceOneWhileTheServerHangs();
    notifications->withdraw(u"a"_s);
    notifications.reset();
    EXPECT_TRUE(serverGot({u"notify 41 new"_s, u"close 41"_s}));
}

TEST(NotificationsWithoutABus, AreNotAvailable) {
    FreedesktopNotifications notifications(QDBusConnection(u"none"_s));
    notifications.show({.key = u"a"_s, .title = u"t"_s, .body = {}, .actions = {}});
    notifications.withdraw(u"a"_s);
    EXPECT_EQ(notifications.isAvailable(), false);
}

TEST(NotificationText, AnyTextOfAProcessIsHarmless) {
    const QString evil = QString::fromUtf8("a\x01\n\u202E\u2028") + QChar(0) + u'z';
    EXPECT_EQ(NotificationText::title(evil), u"a     z"_s);
    EXPECT_EQ(NotificationText::body(evil, true), u"a \n   z"_s);
    EXPECT_EQ(NotificationText::title(u" \u200D👩‍💻 "_s), u"\u200D👩‍💻"_s);
    EXPECT_EQ(NotificationText::title(QString(100'000, u'x')).size(), 120);
    EXPECT_EQ(NotificationText::action(QString(100'000, u'x')).size(), 40);
    // Cut before it is escaped, so that no escape is cut.
    const QString amps = NotificationText::body(QString(100'000, u'&'), true);
    EXPECT_TRUE(amps.endsWith(u"&amp;…"_s));
    EXPECT_EQ(amps.count(u'&'), 599);
    const QString emoji = NotificationText::title(u"👩"_s.repeated(100)); // no half of one stays
    EXPECT_EQ(emoji, u"👩"_s.repeated(59) + u'…');
}
