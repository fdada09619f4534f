#include "Platform/Freedesktop/Desktop/PortalFileChooser.h"

#include "Platform/Freedesktop/BusSignal.h"
#include "Platform/Freedesktop/Desktop/X11Window.h"
#include "Platform/Log.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QFile>
#include <QRandomGenerator>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace {

using namespace Qt::StringLiterals;

const auto portalName = u"org.freedesktop.portal.Desktop"_s;
const auto portalPlace = u"/org/freedesktop/portal/desktop"_s;
const auto chooserInterface = u"org.freedesktop.portal.FileChooser"_s;
const auto requestInterface = u"org.freedesktop.portal.Request"_s;
const auto propertiesInterface = u"org.freedesktop.DBus.Properties"_s;
constexpr uint leastVersionForFolders = 3; // an older portal offers files in place of folders

/// A pattern of names as the portal takes it: (us) in a(sa(us)).
struct Pattern {
    uint kind = 0; ///< 0 for a pattern of names
    QString text;
};
struct FileType {
    QString name;
    QList<Pattern> patterns;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Pattern& pattern) {
    argument.beginStructure();
    argument << pattern.kind << pattern.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Pattern& pattern) {
    argument.beginStructure();
    argument >> pattern.kind >> pattern.text;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const FileType& type) {
    argument.beginStructure();
    argument << type.name << type.patterns;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, FileType& type) {
    argument.beginStructure();
    argument >> type.name >> type.patterns;
    argument.endStructure();
    return argument;
}

/// Returns the path with the zero byte that the portal wants at its end.
QByteArray pathBytes(const QString& path) {
    return QFile::encodeName(path) + '\0';
}

} // namespace

void PortalFileChooser::ask(QWidget* over, const FileChoice& choice, Answered answered,
                            std::function<void()> missing) {
    auto* dialog =
        new PortalFileDialog(m_bus, over, choice, std::move(answered), std::move(missing), m_callTimeoutMs);
    dialog->start();
}

PortalFileDialog::PortalFileDialog(const QDBusConnection& bus, QWidget* over, FileChoice choice,
                                   FileChooser::Answered answered, std::function<void()> missing,
                                   int callTimeoutMs)
    : QObject(over)
    , m_bus(bus)
    , m_choice(std::move(choice))
    , m_answered(std::move(answered))
    , m_missing(std::move(missing))
    , m_callTimeoutMs(callTimeoutMs)
    , m_token(u"tavrin%1"_s.arg(QRandomGenerator::global()->generate()))
    , m_parent(X11Window::isX11() ? u"x11:%1"_s.arg(over->window()->winId(), 0, 16) : QString()) {
    qDBusRegisterMetaType<Pattern>();
    qDBusRegisterMetaType<QList<Pattern>>();
    qDBusRegisterMetaType<FileType>();
    qDBusRegisterMetaType<QList<FileType>>();
}

PortalFileDialog::~PortalFileDialog() {
    if (!m_request.isEmpty())
        m_bus.send(QDBusMessage::createMethodCall(portalName, m_request, requestInterface, u"Close"_s));
}

/// Asks for the version first: the question starts the portal where it does not run yet.
void PortalFileDialog::start() {
    if (!m_bus.isConnected()) {
        QTimer::singleShot(0, this, [this] { giveUp(u"no session bus"_s); });
        return;
    }
    call(propertiesInterface, u"Get"_s, {chooserInterface, u"version"_s},
         [this](const QDBusPendingCall& answer) {
             const QDBusPendingReply<QDBusVariant> version = answer;
             const bool isFolder = m_choice.kind == FileChoice::Kind::folder;
             if (version.isError())
                 giveUp(version.error().name());
             else if (isFolder && version.value().variant().toUInt() < leastVersionForFolders)
                 giveUp(u"a portal that chooses no folders"_s);
             else
                 open();
         });
}

void PortalFileDialog::call(const QString& interface, const QString& method, const QVariantList& arguments,
                            std::function<void(const QDBusPendingCall&)> then) {
    auto message = QDBusMessage::createMethodCall(portalName, portalPlace, interface, method);
    message.setArguments(arguments);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, m_callTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, then = std::move(then)] {
        watcher->deleteLater();
        then(*watcher);
    });
}

void PortalFileDialog::open() {
    // Listens before it calls, at the place that the portal makes of the caller and the token.
    const QString caller = m_bus.baseService().mid(1).replace(u'.', u'_');
    if (!follow(u"%1/request/%2/%3"_s.arg(portalPlace, caller, m_token)))
        return giveUp(u"no answer could be heard"_s);
    auto* owner =
        new QDBusServiceWatcher(portalName, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(owner, &QDBusServiceWatcher::serviceUnregistered, this, [this] { responded(2, {}); });
    const QString method = m_choice.kind == FileChoice::Kind::folder ? u"OpenFile"_s : u"SaveFile"_s;
    call(chooserInterface, method, {m_parent, m_choice.title, options()},
         [this](const QDBusPendingCall& answer) {
             const QDBusPendingReply<QDBusObjectPath> request = answer;
             if (request.isError())
                 giveUp(request.error().name());
             else if (request.value().path() != m_request && !follow(request.value().path()))
                 giveUp(u"no answer could be heard"_s); // an old portal, which makes up a place
         });
}

/// Hears the answer of a request. Returns false where that is refused.
bool PortalFileDialog::follow(const QString& request) {
    m_request = request;
    return followSignal(m_bus, request, requestInterface, u"Response"_s, this,
                        SLOT(responded(uint, QVariantMap)));
}

QVariantMap PortalFileDialog::options() const {
    QVariantMap options{{u"handle_token"_s, m_token}, {u"modal"_s, true}};
    if (!m_choice.startFolder.isEmpty())
        options[u"current_folder"_s] = pathBytes(m_choice.startFolder);
    if (m_choice.kind == FileChoice::Kind::folder) {
        options[u"directory"_s] = true;
        return options;
    }
    options[u"current_name"_s] = m_choice.name;
    if (!m_choice.pattern.isEmpty())
        options[u"filters"_s] = QVariant::fromValue(QList<FileType>{
            {.name = m_choice.typeName, .patterns = {{.kind = 0, .text = m_choice.pattern}}}});
    return options;
}

void PortalFileDialog::responded(uint response, const QVariantMap& results) {
    const QUrl url(results.value(u"uris"_s).toStringList().value(0));
    m_request.clear(); // it is closed
    const auto answered = std::exchange(m_answered, nullptr);
    finish();
    if (answered)
        answered(response == 0 && url.isLocalFile() ? std::optional(url.toLocalFile()) : std::nullopt);
}

void PortalFileDialog::giveUp(const QString& reason) {
    qCInfo(Log::platform) << "no file dialog of the desktop:" << reason;
    const auto missing = std::exchange(m_missing, nullptr);
    finish();
    if (missing)
        missing();
}

void PortalFileDialog::finish() {
    m_answered = nullptr;
    m_missing = nullptr;
    deleteLater();
}
