#include "Platform/Freedesktop/FreedesktopAppearance.h"

#include "Platform/Freedesktop/BusSignal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const auto portalService = u"org.freedesktop.portal.Desktop"_s;
const auto portalObject = u"/org/freedesktop/portal/desktop"_s;
const auto portalSettings = u"org.freedesktop.portal.Settings"_s;
const auto standard = u"org.freedesktop.appearance"_s;
const auto gnome = u"org.gnome.desktop.interface"_s;

struct Rgb {
    double red, green, blue;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Rgb& color) {
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Rgb& color) {
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

/// Answers as the settings of the desktop portal do.
class SettingsPortal : public QDBusVirtualObject {
public:
    explicit SettingsPortal(const QDBusConnection& bus)
        : m_bus(bus) {
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
        m_bus.registerVirtualObject(portalObject, this);
        m_bus.registerService(portalService);
    }

    QMap<QString, QVariantMap> settings;

    void change(const QString& group, const QString& key, const QVariant& value) {
        auto changed = QDBusMessage::createSignal(portalObject, portalSettings, u"SettingChanged"_s);
        changed << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(changed);
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        return message.member() == "ReadAll"_L1 &&
               bus.send(message.createReply(QVariant::fromValue(settings)));
    }

private:
    QDBusConnection m_bus;
};

struct AppearanceOnABus : testing::Test {
    void SetUp() override {
        qDBusRegisterMetaType<Rgb>();
        qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
        m_busProcess.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s,
                                              u"--address=unix:dir="_s + m_folder.path()});
        if (!m_busProcess.waitForStarted() || !m_busProcess.waitForReadyRead())
            GTEST_SKIP() << "no dbus-daemon here";
        m_address = QString::fromLatin1(m_busProcess.readLine().trimmed());
        portal.emplace(bus(u"portal"_s));
        portal->settings[standard] = {{u"color-scheme"_s, 2U},
                                      {u"accent-color"_s, QVariant::fromValue(Rgb{1, 0.5, 0})}};
        portal->settings[gnome] = {{u"text-scaling-factor"_s, 1.25},
                                   {u"font-name"_s, u"Fira Sans, Book 12"_s}};
    }
    void TearDown() override {
        portal.reset();
        QDBusConnection::disconnectFromBus(u"portal"_s);
        QDBusConnection::disconnectFromBus(u"client"_s);
        qunsetenv("XDG_CURRENT_DESKTOP");
        m_busProcess.kill();
        m_busProcess.waitForFinished();
    }
    QDBusConnection bus(const QString& name) const { return QDBusConnection::connectToBus(m_address, name); }

    std::optional<SettingsPortal> portal;

private:
    QTemporaryDir m_folder;
    QProcess m_busProcess;
    QString m_address;
};

} // namespace

TEST_F(AppearanceOnABus, ReadsAndFollowsThePortal) {
    const FreedesktopAppearance appearance(bus(u"client"_s));
    const auto becomes = [&appearance](const auto& holds) {
        return QTest::qWaitFor([&] { return holds(appearance.choice()); }, 3000);
    };
    EXPECT_TRUE(becomes([](const AppearanceChoice& choice) { return choice.dark == false; }));
    EXPECT_EQ(appearance.choice().accent, 0xff8000U);
    EXPECT_EQ(appearance.choice().textScale, 1.25);
    EXPECT_EQ(appearance.choice().fontFamily, u"Fira Sans"_s);
    EXPECT_EQ(appearance.choice().fontPoints, 12);

    portal->change(standard, u"color-scheme"_s, 1U);
    EXPECT_TRUE(becomes([](const AppearanceChoice& choice) { return choice.dark == true; }));
    portal->change(standard, u"contrast"_s, 1U);
    EXPECT_TRUE(becomes([](const AppearanceChoice& choice) { return choice.highContrast; }));
    portal->change(gnome, u"enable-animations"_s, false);
    EXPECT_TRUE(becomes([](const AppearanceChoice& choice) { return choice.reducedMotion; }));
    portal->change(standard, u"accent-color"_s, QVariant::fromValue(Rgb{-1, -1, -1}));
    EXPECT_TRUE(becomes([](const AppearanceChoice& choice) { return !choice.accent; }));
    portal->change(gnome, u"font-name"_s, u"no size"_s);
    portal->change(standard, u"color-scheme"_s, 0U);
    EXPECT_TRUE(becomes([](const AppearanceChoice& choice) { return !choice.dark; }));
    EXPECT_EQ(appearance.choice().fontPoints, 12);
}

TEST_F(AppearanceOnABus, ASignalThatCannotBeFollowedIsSaid) {
    QObject receiver;
    EXPECT_FALSE(followSignal(bus(u"client"_s), portalObject, portalSettings, u"SettingChanged"_s, &receiver,
                              SLOT(noSuchSlot(QString))));
}
