#include "Platform/Freedesktop/FreedesktopAppearance.h"

#include "Platform/Freedesktop/BusSignal.h"
#include "Platform/Log.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>
#include <cmath>

namespace {

const auto portal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto gnomeAccessGroup = QStringLiteral("org.gnome.desktop.a11y.interface");

using SettingGroups = QMap<QString, QVariantMap>;

/// Returns the value in its variants: some portals wrap one more than the others.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// Returns 0xRRGGBB of three numbers from 0 to 1; nothing of others, which mean that there is no accent.
std::optional<quint32> accentOf(const QVariant& value) {
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)"))
        return std::nullopt;
    double parts[3] = {-1, -1, -1};
    argument.beginStructure();
    for (double& part : parts)
        argument >> part;
    argument.endStructure();
    quint32 color = 0;
    for (const double part : parts) {
        if (!(part >= 0 && part <= 1))
            return std::nullopt;
        color = color << 8U | static_cast<quint32>(std::lround(part * 255));
    }
    return color;
}

/// Reads "Cantarell 11" or "Noto Sans, Bold 10.5".
void takeFont(AppearanceChoice& choice, const QString& font) {
    const qsizetype gap = font.lastIndexOf(u' ');
    const double points = font.mid(gap + 1).toDouble();
    if (gap < 1 || !(points >= 4 && points <= 96))
        return;
    choice.fontFamily = font.left(gap).section(u',', 0, 0).trimmed();
    choice.fontPoints = points;
}

/// The settings of GNOME's own schema stay at their defaults on other desktops.
bool isGnome() {
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    return desktops.contains(QStringLiteral("GNOME")) || desktops.contains(QStringLiteral("Pantheon"));
}

void takeAppearance(AppearanceChoice& choice, const QString& key, const QVariant& value) {
    if (key == u"color-scheme") { // 1 dark, 2 light, anything else no preference
        const uint scheme = value.toUInt();
        choice.dark = scheme == 1 ? std::optional(true) : scheme == 2 ? std::optional(false) : std::nullopt;
    } else if (key == u"accent-color") {
        choice.accent = accentOf(value);
    } else if (key == u"contrast") {
        choice.highContrast = value.toUInt() == 1;
    } else if (key == u"reduced-motion") {
        choice.reducedMotion = value.toUInt() == 1;
    }
}

void takeGnome(AppearanceChoice& choice, const QString& key, const QVariant& value) {
    if (key == u"text-scaling-factor") {
        const double scale = value.toDouble();
        choice.textScale = scale > 0 ? std::optional(std::clamp(scale, 0.5, 3.0)) : std::nullopt;
    } else if (key == u"font-name") {
        takeFont(choice, value.toString());
    } else if (key == u"enable-animations") {
        choice.reducedMotion = !value.toBool();
    } else if (key == u"high-contrast") {
        choice.highContrast = value.toBool();
    }
}

} // namespace

FreedesktopAppearance::FreedesktopAppearance(const QDBusConnection& bus, QObject* parent)
    : Appearance(parent)
    , m_bus(bus) {
    if (!m_bus.isConnected()) {
        qCInfo(Log::platform) << "no session bus:" << m_bus.lastError().name();
        return;
    }
    qRegisterMetaType<QDBusVariant>(); // Qt looks for the slot's types by name
    followSignal(m_bus, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask();
}

void FreedesktopAppearance::ask() {
    qDBusRegisterMetaType<SettingGroups>();
    auto message =
        QDBusMessage::createMethodCall(portal, portalPath, settingsInterface, QStringLiteral("ReadAll"));
    message << QStringList{appearanceGroup, gnomeGroup, gnomeAccessGroup};
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<SettingGroups> reply = *watcher;
        if (!reply.isValid())
            qCInfo(Log::platform) << "the desktop portal does not answer:" << reply.error().name();
        const SettingGroups groups = reply.isValid() ? reply.value() : SettingGroups();
        for (auto group = groups.begin(); group != groups.end(); ++group)
            take(group.key(), group.value());
        watcher->deleteLater();
    });
}

void FreedesktopAppearance::settingChanged(const QString& group, const QString& key,
                                           const QDBusVariant& value) {
    take(group, {{key, value.variant()}});
}

void FreedesktopAppearance::take(const QString& group, const QVariantMap& settings) {
    AppearanceChoice choice = m_choice;
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        const QVariant value = unwrapped(setting.value());
        if (group == appearanceGroup)
            takeAppearance(choice, setting.key(), value);
        else if ((group == gnomeGroup || group == gnomeAccessGroup) && isGnome())
            takeGnome(choice, setting.key(), value);
    }
    if (choice == m_choice)
        return;
    m_choice = choice;
    Q_EMIT changed();
}
