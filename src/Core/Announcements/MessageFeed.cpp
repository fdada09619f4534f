#include "Core/Announcements/MessageFeed.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Reads the members of one message object.
class MessageReader {
public:
    explicit MessageReader(const QJsonValue& value)
        : m_object(value.toObject())
        , m_hasFailed(!value.isObject()) {}

    /// Returns whether any member so far was of a wrong type.
    bool hasFailed() const { return m_hasFailed; }

    QString text(QLatin1StringView key) { return checkedText(m_object[key]); }

    std::optional<QString> optionalText(QLatin1StringView key) {
        const QJsonValue value = m_object[key];
        return isLeftOut(value) ? std::nullopt : std::optional(checkedText(value));
    }

    std::optional<bool> optionalBoolean(QLatin1StringView key) {
        const QJsonValue value = m_object[key];
        if (isLeftOut(value))
            return std::nullopt;
        m_hasFailed |= !value.isBool();
        return value.toBool();
    }

    template <typename E> E oneOf(QLatin1StringView key) {
        const auto read = fromRawValue<E>(text(key));
        m_hasFailed |= !read;
        return read.value_or(E());
    }

private:
    static bool isLeftOut(const QJsonValue& value) { return value.isUndefined() || value.isNull(); }

    /// Escapes can spell half a surrogate pair, which is no text.
    QString checkedText(const QJsonValue& value) {
        const QString text = value.toString();
        m_hasFailed |= !value.isString() || !text.isValidUtf16();
        return text;
    }

    const QJsonObject m_object;
    bool m_hasFailed;
};

std::optional<Message> parseMessage(const QJsonValue& value) {
    MessageReader reader(value);
    const Message message = {.id = reader.text("id"_L1),
                             .target = reader.oneOf<Message::Target>("target"_L1),
                             .severity = reader.oneOf<Message::Severity>("severity"_L1),
                             .title = reader.text("title"_L1),
                             .body = reader.text("body"_L1),
                             .actionLabel = reader.optionalText("actionLabel"_L1),
                             .actionURL = reader.optionalText("actionURL"_L1),
                             .minVersion = reader.optionalText("minVersion"_L1),
                             .maxVersion = reader.optionalText("maxVersion"_L1),
                             .showOncePerVersion = reader.optionalBoolean("showOncePerVersion"_L1)};
    return reader.hasFailed() ? std::nullopt : std::optional(message);
}

bool isHarmlessMail(const QUrl& url) {
    const auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    const bool onlyText = std::all_of(items.begin(), items.end(), [](const auto& item) {
        return item.first.compare("subject"_L1, Qt::CaseInsensitive) == 0 ||
               item.first.compare("body"_L1, Qt::CaseInsensitive) == 0;
    });
    return onlyText && !url.path().isEmpty() && url.authority().isEmpty();
}

bool isHarmless(const QUrl& url) {
    if (!url.isValid())
        return false;
    if (url.scheme() == "mailto"_L1)
        return isHarmlessMail(url);
    const bool isPage = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    return isPage && !url.host().isEmpty() && url.userInfo().isEmpty();
}

} // namespace

std::optional<QUrl> Message::actionLink() const {
    const QUrl url(actionURL.value_or(QString()), QUrl::StrictMode);
    return isHarmless(url) ? std::optional(url) : std::nullopt;
}

int severityRank(Message::Severity severity) {
    constexpr int ranks[] = {1, 4, 3, 2};
    return ranks[static_cast<int>(severity)];
}

std::optional<Feed> Feed::decode(const QByteArray& json) {
    if (!QUtf8StringView(json).isValidUtf8())
        return std::nullopt;
    const QJsonValue messages = QJsonDocument::fromJson(json).object()["messages"_L1];
    if (!messages.isArray())
        return std::nullopt;
    Feed feed;
    const QJsonArray array = messages.toArray();
    for (const QJsonValue& value : array) {
        const auto message = parseMessage(value);
        if (!message)
            return std::nullopt;
        feed.messages.append(*message);
    }
    return feed;
}
