#include "Platform/Linux/LinuxPowerMode.h"

#include "support/TemporaryFolder.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Replies as the power-profiles daemon does, under one of its names.
class Daemon : public QDBusVirtualObject {
public:
    Daemon(const QDBusConnection& bus, const QString& service)
        : m_bus(bus)
        , m_service(service) {
        m_bus.registerVirtualObject(path(), this);
        m_bus.registerService(m_service);
    }
    ~Daemon() override {
        m_bus.unregisterService(m_service);
        m_bus.unregisterObject(path());
    }

    void setProfile(const QString& profile) {
        m_profile = profile;
        auto changed =
            QDBusMessage::createSignal(path(), u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        changed << m_service << QVariantMap{{u"ActiveProfile"_s, profile}} << QStringList();
        m_bus.send(changed);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != "Get"_L1 || message.arguments().value(0) != m_service ||
            message.arguments().value(1) != u"ActiveProfile"_s)
            return false;
        return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(m_profile))));
    }

private:
    QString path() const { return u'/' + QString(m_service).replace(u'.', u'/'); }

    QDBusConnection m_bus;
    QString m_service;
    QString m_profile = u"balanced"_s;
};

class PowerModeOnABus : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        m_busProcess.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s,
                                              u"--address=unix:dir="_s + m_folder.path()});
        if (!m_busProcess.waitForStarted() || !m_busProcess.waitForReadyRead())
            GTEST_SKIP() << "no dbus-daemon here";
        m_address = QString::fromLatin1(m_busProcess.readLine().trimmed());
    }
    void TearDown() override {
        QDBusConnection::disconnectFromBus(u"daemon"_s);
        QDBusConnection::disconnectFromBus(u"client"_s);
        m_busProcess.kill();
        m_busProcess.waitForFinished();
    }
    QDBusConnection bus(const QString& name) const { return QDBusConnection::connectToBus(m_address, name); }

private:
    QTemporaryDir m_folder;
    QProcess m_busProcess;
    QString m_address;
};

TEST_P(PowerModeOnABus, FollowsTheDaemonAndFallsBackToTheFirmware) {
    TemporaryFolder root;
    root.makeFile(u"sys/firmware/acpi/platform_profile"_s, "low-power\n");
    const LinuxPowerMode mode(bus(u"client"_s), root.path());
    EXPECT_TRUE(mode.isLowPowerModeEnabled()); // by the firmware, as no daemon runs
    {
        Daemon daemon(bus(u"daemon"_s), QString::fromLatin1(GetParam()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !mode.isLowPowerModeEnabled(); }));
        daemon.setProfile(u"power-saver"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return mode.isLowPowerModeEnabled(); }));
        daemon.setProfile(u"performance"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !mode.isLowPowerModeEnabled(); }));
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return mode.isLowPowerModeEnabled(); }));
}

INSTANTIATE_TEST_SUITE_P(Names, PowerModeOnABus,
                         testing::Values("net.hadess.PowerProfiles", "org.freedesktop.UPower.PowerProfiles"));

TEST(PowerMode, NeedsNoBus) {
    static int messages;
    messages = 0;
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++messages; });
    for (const auto& [profile, expected] : std::vector<std::pair<const char*, bool>>{
             {"low-power\n", true}, {"balanced\n", false}, {"low-power-ish\n", false}, {"", false}}) {
        TemporaryFolder root;
        root.makeFile(u"sys/firmware/acpi/platform_profile"_s, profile);
        const LinuxPowerMode mode(QDBusConnection(u"none"_s), root.path());
        EXPECT_EQ(mode.isLowPowerModeEnabled(), expected) << profile;
    }
    const TemporaryFolder bare;
    EXPECT_FALSE(LinuxPowerMode(QDBusConnection(u"none"_s), bare.path()).isLowPowerModeEnabled());
    const LinuxPowerMode ofThisMachine;
    qInstallMessageHandler(previous);
    EXPECT_EQ(messages, 0);
}

} // namespace
