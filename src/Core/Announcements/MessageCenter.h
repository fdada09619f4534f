#pragma once

#include "Core/Announcements/MessageFeed.h"
#include "Core/Observable.h"

#include <QCoroTask>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <optional>

class FeedSource;
class SettingsFile;

/// Fetches the maker's announcements and publishes the one to show. A failure of any kind is silent: what was
/// known stays, and the next poll tries again.
class MessageCenter : public Observable {
    Q_OBJECT

public:
    using Message = ::Message;
    using Feed = ::Feed;

    /// That of the running program; made on first use, never destroyed before the program ends.
    static MessageCenter& shared();

    /// `settings` outlives the center; dismissals are kept there.
    MessageCenter(std::unique_ptr<FeedSource> source, SettingsFile& settings, QUrl url = defaultFeedURL(),
                  QObject* parent = nullptr);
    ~MessageCenter() override;

    /// "https://HOST/api/messages.json", on the host that the build names.
    static QUrl defaultFeedURL();

    const QUrl& feedURL() const { return m_feedURL; }
    /// The feed as it was last read, in its own order.
    const QList<Message>& allMessages() const { return m_allMessages; }
    /// Empty when no message qualifies.
    const std::optional<Message>& currentMessage() const { return m_currentMessage; }

    static constexpr double pollInterval = 43200; ///< seconds

    /// Refreshes on the next pass of the main loop, and then every `pollInterval`.
    void start();
    /// One fetch. Of refreshes that overlap the one that completes last has its way.
    QCoro::Task<> refresh();
    /// Chooses anew among the messages that are known.
    void recompute();
    /// The message is not shown again: for good, or while this version runs.
    void dismiss(const Message& message);

    /// Under which the settings hold true once the message was dismissed.
    static QString dismissKey(const Message& message);
    /// "0.0.0" where the program has no version.
    static QString appVersion();
    /// -1, 0 or 1, number by number between the dots. What is no number counts as -1, what is missing as 0.
    static int compareVersions(const QString& a, const QString& b);

private:
    bool isEligible(const Message& message, const QString& version) const;

    QUrl m_feedURL;
    std::optional<Message> m_currentMessage;
    QList<Message> m_allMessages;
    QTimer m_timer{this};
    SettingsFile& m_settings;
    std::unique_ptr<FeedSource> m_source;
};
