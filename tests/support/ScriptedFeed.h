#pragma once

#include "Core/Announcements/FeedSource.h"
#include "Core/Announcements/MessageFeed.h"
#include "support/Turn.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

/// Answers with `answer`: at once or, while `suspended`, when the test releases a request.
class ScriptedFeed : public FeedSource {
public:
    std::optional<QByteArray> answer;
    bool suspended = false;
    QList<QUrl> requests;

    QCoro::Task<std::optional<QByteArray>> fetch(QUrl url) override {
        requests.append(url);
        if (suspended) {
            Turn turn{m_waiting};
            co_await turn;
        }
        co_return answer;
    }

    /// Resumes a suspended request, counted from the oldest.
    void release(qsizetype index) { m_waiting.takeAt(index).resume(); }

private:
    QList<std::coroutine_handle<>> m_waiting;
};

/// Returns the document of these messages.
inline QByteArray feedOf(const QList<Message>& messages) {
    QJsonArray array;
    for (const Message& message : messages) {
        QJsonObject object{{QStringLiteral("id"), message.id},
                           {QStringLiteral("target"), rawValue(message.target)},
                           {QStringLiteral("severity"), rawValue(message.severity)},
                           {QStringLiteral("title"), message.title},
                           {QStringLiteral("body"), message.body}};
        const auto add = [&object](const char* key, const auto& value) {
            if (value)
                object[QLatin1String(key)] = *value;
        };
        add("actionLabel", message.actionLabel);
        add("actionURL", message.actionURL);
        add("minVersion", message.minVersion);
        add("maxVersion", message.maxVersion);
        add("showOncePerVersion", message.showOncePerVersion);
        array.append(object);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("messages"), array}}).toJson(QJsonDocument::Compact);
}
