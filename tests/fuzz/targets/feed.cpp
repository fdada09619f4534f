#include "Core/Announcements/MessageCenter.h"
#include "Core/Announcements/MessageFeed.h"
#include "fuzz/Fuzz.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Appends an empty message, which rejects the whole feed.
QByteArray withABadMessage(const QByteArray& json) {
    QJsonObject root = QJsonDocument::fromJson(json).object();
    QJsonArray messages = root["messages"_L1].toArray();
    messages.append(QJsonObject());
    root["messages"_L1] = messages;
    return QJsonDocument(root).toJson();
}

void isHarmless(const QUrl& link) {
    if (link.scheme() == "mailto"_L1) {
        const auto items = QUrlQuery(link).queryItems();
        Fuzz::require(std::none_of(items.begin(), items.end(), [](const auto& item) {
            return item.first.contains("attach"_L1, Qt::CaseInsensitive);
        }));
        return;
    }
    Fuzz::require(link.scheme() == "http"_L1 || link.scheme() == "https"_L1);
    Fuzz::require(!link.host().isEmpty() && link.userInfo().isEmpty() && !link.isLocalFile());
}

void areOrdered(const QString& a, const QString& b) {
    Fuzz::require(MessageCenter::compareVersions(a, a) == 0);
    Fuzz::require(MessageCenter::compareVersions(a, b) == -MessageCenter::compareVersions(b, a));
}

} // namespace

/// The document at the feed's address.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray json = Fuzz::bytes(data, size);
    const auto feed = Feed::decode(json);
    if (!feed)
        return 0;
    Fuzz::require(!Feed::decode(withABadMessage(json)));
    QString earlier;
    for (const Message& message : feed->messages) {
        for (const QString& text :
             {message.id, message.title, message.body, message.minVersion.value_or(QString())})
            Fuzz::require(text.isValidUtf16());
        if (const auto link = message.actionLink())
            isHarmless(*link);
        for (const auto& version : {message.minVersion, message.maxVersion})
            areOrdered(earlier, version.value_or(QString()));
        earlier = message.maxVersion.value_or(message.id);
    }
    return 0;
}
