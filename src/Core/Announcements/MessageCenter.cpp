#include "Core/Announcements/MessageCenter.h"

#include "Core/Announcements/FeedTool.h"
#include "Core/Log.h"
#include "Core/SettingsFile.h"
#include "Platform/Platform.h"
#include "Preferences.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 unreadable = -1;

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// Reads decimal digits with or without a sign. Anything else, or more than 64 bits, is unreadable.
qint64 versionNumber(QStringView piece) {
    const bool hasSign = piece.startsWith(u'+') || piece.startsWith(u'-');
    const QStringView digits = piece.mid(hasSign ? 1 : 0);
    bool fits = false;
    const qint64 number = piece.toLongLong(&fits);
    return fits && std::all_of(digits.begin(), digits.end(), isDigit) ? number : unreadable;
}

} // namespace

MessageCenter& MessageCenter::shared() {
    static MessageCenter instance(std::make_unique<FeedTool>(Platform::makeToolRunner()),
                                  Preferences::shared().file());
    return instance;
}

MessageCenter::MessageCenter(std::unique_ptr<FeedSource> source, SettingsFile& settings, QUrl url,
                             QObject* parent)
    : Observable(parent)
    , m_feedURL(std::move(url))
    , m_settings(settings)
    , m_source(std::move(source)) {
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { refresh(); });
}

MessageCenter::~MessageCenter() = default;

QUrl MessageCenter::defaultFeedURL() {
    return QUrl(u"https://" TAVRIN_FEED_HOST "/api/messages.json"_s);
}

void MessageCenter::start() {
    constexpr double millisecondsPerSecond = 1000;
    m_timer.start(static_cast<int>(pollInterval * millisecondsPerSecond));
    QMetaObject::invokeMethod(
        this, [this] { refresh(); }, Qt::QueuedConnection);
}

QCoro::Task<> MessageCenter::refresh() {
    const QPointer<MessageCenter> self(this);
    auto fetching = m_source->fetch(m_feedURL);
    const std::optional<QByteArray> body = co_await fetching;
    if (!body || !self)
        co_return;
    const std::optional<Feed> feed = Feed::decode(*body);
    if (!feed) {
        qCWarning(Log::feed) << "not understood, of" << body->size() << "bytes";
        co_return;
    }
    m_allMessages = feed->messages;
    recompute();
}

void MessageCenter::recompute() {
    const QString version = appVersion();
    const Message* chosen = nullptr;
    for (const Message& message : m_allMessages) {
        const bool outranks = !chosen || severityRank(message.severity) > severityRank(chosen->severity);
        if (outranks && isEligible(message, version))
            chosen = &message;
    }
    publish(m_currentMessage, chosen ? std::optional(*chosen) : std::nullopt);
}

bool MessageCenter::isEligible(const Message& message, const QString& version) const {
    if (message.target != Message::Target::all && message.target != Message::ownTarget)
        return false;
    if (message.minVersion && compareVersions(version, *message.minVersion) < 0)
        return false;
    if (message.maxVersion && compareVersions(version, *message.maxVersion) > 0)
        return false;
    return !m_settings.boolean(dismissKey(message)).value_or(false);
}

void MessageCenter::dismiss(const Message& message) {
    m_settings.store(dismissKey(message), true);
    recompute();
}

QString MessageCenter::dismissKey(const Message& message) {
    const QString key = u"tv.msg.dismissed."_s + message.id;
    return message.showOncePerVersion.value_or(false) ? key + u".v"_s + appVersion() : key;
}

QString MessageCenter::appVersion() {
    const QString version = QCoreApplication::applicationVersion();
    return version.isEmpty() ? u"0.0.0"_s : version;
}

int MessageCenter::compareVersions(const QString& a, const QString& b) {
    const QStringList ours = a.split(u'.', Qt::SkipEmptyParts);
    const QStringList theirs = b.split(u'.', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < std::max(ours.size(), theirs.size()); ++i) {
        const qint64 x = i < ours.size() ? versionNumber(ours[i]) : 0;
        const qint64 y = i < theirs.size() ? versionNumber(theirs[i]) : 0;
        if (x != y)
            return x < y ? -1 : 1;
    }
    return 0;
}
